# What makes a fault in the library, or in its host, harder to exploit. Each is asked of the compiler
# or the linker, so that a toolchain without it builds all the same; tools/check_binary.py reads off
# the built file what came of it.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

function(zeph_harden_objects target)
  foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection=full)
    string(MAKE_C_IDENTIFIER "ZEPH_HAS${flag}" known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known} AND NOT WIN32)
      target_compile_options(${target} PRIVATE ${flag})
    endif()
  endforeach()
  # The checks of sizes need an optimizing compiler, and stand in the sanitizers' way.
  if(NOT ZEPH_SANITIZE AND NOT WIN32)
    target_compile_options(${target} PRIVATE
      $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>)
  endif()
endfunction()

function(zeph_harden_library target)
  if(WIN32)
    set(flags --dynamicbase --nxcompat)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
      list(APPEND flags --high-entropy-va)
    endif()
  else()
    set(flags -z,relro -z,now -z,noexecstack -z,text)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86" AND NOT ZEPH_SANITIZE)
      # The compiler's start files carry the mark of control-flow protection only in some systems.
      list(APPEND flags -z,ibt -z,shstk)
    endif()
  endif()
  foreach(flag ${flags})
    string(MAKE_C_IDENTIFIER "ZEPH_LINKS${flag}" known)
    check_linker_flag(CXX "LINKER:${flag}" ${known})
    if(${known})
      target_link_options(${target} PRIVATE "LINKER:${flag}")
    endif()
  endforeach()
endfunction()
