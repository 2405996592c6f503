// Bytes as hexadecimal numbers of two digits, each with a blank behind it.
#ifndef ZEPH_SCAN_HEX_PAIRS_H
#define ZEPH_SCAN_HEX_PAIRS_H

#include <cstddef>

#include "scan/wide.h"

namespace zeph {

enum class HexDigits { lower, upper };

// Writes 3 * size bytes to `out`: the bytes 48 0A give "48 0A ".
inline void put_hex_pairs(HexDigits digits, char* out, const char* bytes, std::size_t size);

// The twins, with the same promise; the wide one where the build has it, for at least 8 bytes.
void put_hex_pairs_portable(HexDigits digits, char* out, const char* bytes, std::size_t size);
void put_hex_pairs_avx2(HexDigits digits, char* out, const char* bytes, std::size_t size);

inline void put_hex_pairs(HexDigits digits, char* out, const char* bytes, std::size_t size) {
#ifdef ZEPH_HAS_AVX2
  if (size >= 8 && has_avx2()) return put_hex_pairs_avx2(digits, out, bytes, size);
#endif
  put_hex_pairs_portable(digits, out, bytes, size);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_HEX_PAIRS_H
