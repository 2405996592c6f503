// Bytes as hexadecimal numbers of as few digits as each takes, with a blank behind it.
#ifndef ZEPH_SCAN_HEX_NUMBERS_H
#define ZEPH_SCAN_HEX_NUMBERS_H

#include <cstddef>

namespace zeph {

// Writes the numbers of blocks of 16 bytes, from `out` on, which it moves behind them, and leaves
// the last 16 to 31 bytes alone: their numbers give the room that its wide stores need. Returns how
// many bytes are done, none of fewer than 32.
std::size_t put_hex_numbers_avx512(char*& out, const char* bytes, std::size_t size);

#ifdef ZEPH_HAS_AVX512_VBMI2
inline bool has_avx512_vbmi2() {
  return __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("avx512vbmi") &&
         __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512bw") &&
         __builtin_cpu_supports("bmi2");
}
#endif

}  // namespace zeph

#endif  // ZEPH_SCAN_HEX_NUMBERS_H
