# Flags that every target of this project carries. Users' targets get none of them.
function(zeph_flags target)
  target_compile_features(${target} PRIVATE cxx_std_17)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
  if(ZEPH_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(ZEPH_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${ZEPH_SANITIZE} -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${ZEPH_SANITIZE})
  endif()
endfunction()
