# Which of the processor's AES instructions this compiler knows, and can ask the processor for.
# ZEPH_AES_SOURCES and ZEPH_AES_DEFINITIONS are the outcome, both empty elsewhere than on x86 and in
# a portable build.
include(CheckCXXSourceCompiles)

set(ZEPH_AES_SOURCES)
set(ZEPH_AES_DEFINITIONS)

check_cxx_source_compiles("
  #include <immintrin.h>
  [[gnu::target(\"aes\")]] __m128i round(__m128i a, __m128i b) { return _mm_aesenc_si128(a, b); }
  int main() { return __builtin_cpu_supports(\"aes\") ? 0 : 1; }" ZEPH_FOUND_AES_X86)

# On 32-bit x86 there are too few registers for the wide instructions to gain anything; GCC for
# Windows does not align the stack as its own code for them expects.
check_cxx_source_compiles("
  #include <immintrin.h>
  #if !defined(__x86_64__) || defined(_WIN32)
  #error none
  #endif
  [[gnu::target(\"vaes,avx2\")]] __m256i round(__m256i a, __m256i b) {
    return _mm256_aesenc_epi128(a, b);
  }
  int main() { return __builtin_cpu_supports(\"vaes\") && __builtin_cpu_supports(\"avx2\"); }"
  ZEPH_FOUND_VAES_X86)

if(ZEPH_FOUND_AES_X86 AND NOT ZEPH_PORTABLE)
  list(APPEND ZEPH_AES_SOURCES cipher/aes_x86.cpp)
  list(APPEND ZEPH_AES_DEFINITIONS ZEPH_HAS_AES_X86)
  if(ZEPH_FOUND_VAES_X86)
    list(APPEND ZEPH_AES_SOURCES cipher/aes_vaes_x86.cpp)
    list(APPEND ZEPH_AES_DEFINITIONS ZEPH_HAS_VAES_X86)
  endif()
endif()
