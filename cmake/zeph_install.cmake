# Installs the library, the header, the CMake package Zeph and zeph.pc.
include(CMakePackageConfigHelpers)

install(TARGETS zeph EXPORT ZephTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/zeph.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(ZEPH_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Zeph)
install(EXPORT ZephTargets NAMESPACE Zeph:: DESTINATION ${ZEPH_PACKAGE_DIR})
file(WRITE ${PROJECT_BINARY_DIR}/ZephConfig.cmake
  "include(\"\${CMAKE_CURRENT_LIST_DIR}/ZephTargets.cmake\")\n")
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZephConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZephConfig.cmake ${PROJECT_BINARY_DIR}/ZephConfigVersion.cmake
  DESTINATION ${ZEPH_PACKAGE_DIR})

if(NOT BUILD_SHARED_LIBS)
  set(ZEPH_PC_CFLAGS " -DZEPH_STATIC")
endif()
# The paths in zeph.pc start from where it lies, so that the installed tree can be moved.
set(ZEPH_PC_DIR ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH ZEPH_PC_PREFIX ${ZEPH_PC_DIR} ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH ZEPH_PC_INCLUDEDIR ${ZEPH_PC_DIR} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/zeph.pc.in ${PROJECT_BINARY_DIR}/zeph.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zeph.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
