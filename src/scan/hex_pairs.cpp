#include "scan/hex_pairs.h"

#include <cstring>

namespace zeph {
namespace {

struct PairTable {
  char pairs[256][4];
};

constexpr PairTable make_pairs(const char* digits) {
  PairTable table{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    table.pairs[byte][0] = digits[byte / 16];
    table.pairs[byte][1] = digits[byte % 16];
    table.pairs[byte][2] = ' ';
  }
  return table;
}

constexpr PairTable lower_pairs = make_pairs("0123456789abcdef");
constexpr PairTable upper_pairs = make_pairs("0123456789ABCDEF");

}  // namespace

// Each pair is stored with a byte more, which the next one overwrites; the last has no next one.
void put_hex_pairs_portable(HexDigits digits, char* out, const char* bytes, std::size_t size) {
  if (size == 0) return;
  const auto& pairs = digits == HexDigits::lower ? lower_pairs.pairs : upper_pairs.pairs;
  const auto pair_of = [&](char byte) { return pairs[static_cast<unsigned char>(byte)]; };
  for (std::size_t i = 0; i + 1 < size; ++i, out += 3) std::memcpy(out, pair_of(bytes[i]), 4);
  std::memcpy(out, pair_of(bytes[size - 1]), 3);
}

}  // namespace zeph
