# What the scan primitives find here: twins that are chosen at run time, and services of the C library.
# ZEPH_SCAN_SOURCES and ZEPH_SCAN_DEFINITIONS are the outcome, both empty in a portable build.
include(CheckCXXSourceCompiles)

set(ZEPH_SCAN_SOURCES)
set(ZEPH_SCAN_DEFINITIONS)

# Not on Windows, where GCC does not align the stack as its own code for these instructions expects.
check_cxx_source_compiles("
  #include <immintrin.h>
  #ifdef _WIN32
  #error none
  #endif
  [[gnu::target(\"avx2\")]] __m256i sum(__m256i a, __m256i b) { return _mm256_add_epi8(a, b); }
  int main() { return __builtin_cpu_supports(\"avx2\") ? 0 : 1; }" ZEPH_FOUND_AVX2)

# The masks are 64-bit numbers.
check_cxx_source_compiles("
  #include <immintrin.h>
  #if !defined(__x86_64__) || defined(_WIN32)
  #error none
  #endif
  [[gnu::target(\"avx512bw\")]] __m512i load(const char* a) { return _mm512_maskz_loadu_epi8(1, a); }
  int main() { return __builtin_cpu_supports(\"avx512bw\") ? 0 : 1; }" ZEPH_FOUND_AVX512)

# Old assemblers and compilers know AVX-512 without these.
check_cxx_source_compiles("
  #include <immintrin.h>
  #if !defined(__x86_64__) || defined(_WIN32)
  #error none
  #endif
  [[gnu::target(\"avx512vbmi,avx512vbmi2,avx512bw\")]] __m512i pack(__m512i a) {
    return _mm512_maskz_compress_epi8(1, _mm512_permutexvar_epi8(a, a)); }
  int main() { return __builtin_cpu_supports(\"avx512vbmi2\") ? 0 : 1; }" ZEPH_FOUND_AVX512_VBMI2)

check_cxx_source_compiles("
  #include <cctype>
  int main() { return (*__ctype_tolower_loc())['A'] + (*__ctype_toupper_loc())['a']; }"
  ZEPH_FOUND_CTYPE_TABLES)

if(NOT ZEPH_PORTABLE)
  if(ZEPH_FOUND_AVX2)
    list(APPEND ZEPH_SCAN_SOURCES scan/ascii_fold_avx2.cpp scan/copy_text_avx2.cpp scan/find_pair_avx2.cpp
      scan/hex_pairs_avx2.cpp scan/last_byte_avx2.cpp scan/remove_byte_avx2.cpp scan/same_text_avx2.cpp)
    list(APPEND ZEPH_SCAN_DEFINITIONS ZEPH_HAS_AVX2)
  endif()
  if(ZEPH_FOUND_AVX512)
    list(APPEND ZEPH_SCAN_SOURCES scan/ascii_fold_avx512.cpp scan/copy_text_avx512.cpp
      scan/find_byte_avx512.cpp scan/find_needle_avx512.cpp scan/find_pair_avx512.cpp
      scan/move_bytes_avx512.cpp scan/same_text_avx512.cpp)
    list(APPEND ZEPH_SCAN_DEFINITIONS ZEPH_HAS_AVX512)
  endif()
  if(ZEPH_FOUND_AVX512_VBMI2)
    list(APPEND ZEPH_SCAN_SOURCES scan/hex_numbers_avx512.cpp)
    list(APPEND ZEPH_SCAN_DEFINITIONS ZEPH_HAS_AVX512_VBMI2)
  endif()
  if(ZEPH_FOUND_CTYPE_TABLES)
    list(APPEND ZEPH_SCAN_DEFINITIONS ZEPH_HAS_CTYPE_TABLES)
  endif()
endif()
