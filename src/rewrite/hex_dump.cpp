// Bytes as rows of hexadecimal numbers, in two styles: as few lower-case digits as a byte needs in
// Strings, two upper-case digits for each in owned buffers.
#include <algorithm>
#include <cstring>

#include "frame/owned_buffers.h"
#include "scan/hex_pairs.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr std::size_t block_size = 16;

bool has_one_digit(char byte) {
  return static_cast<unsigned char>(byte) < 0x10;
}

// Writes each number with a blank behind it; returns the place behind the last blank.
char* put_numbers(char* out, const char* bytes, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    char pair[3];
    put_hex_pairs_portable(HexDigits::lower, pair, bytes + i, 1);
    const std::size_t skipped = has_one_digit(bytes[i]) ? 1 : 0;
    std::memcpy(out, pair + skipped, 3 - skipped);
    out += 3 - skipped;
  }
  return out;
}

// Blocks whose bytes all take two digits are pairs; the others go number by number.
std::string dump_numbers(const char* bytes, std::size_t size) {
  if (size == 0) return std::string();
  const auto short_ones =
      static_cast<std::size_t>(std::count_if(bytes, bytes + size, has_one_digit));
  std::string dump(3 * size - short_ones, '\0');
  char* out = dump.data();
  for (std::size_t i = 0; i < size; i += block_size) {
    const std::size_t n = std::min(block_size, size - i);
    if (short_ones == 0 || std::none_of(bytes + i, bytes + i + n, has_one_digit)) {
      put_hex_pairs(HexDigits::lower, out, bytes + i, n);
      out += 3 * n;
    } else {
      out = put_numbers(out, bytes + i, n);
    }
  }
  dump.pop_back();  // the blank behind the last number
  return dump;
}

// The dump takes 3 * size + 1 bytes. All of them are written: the last number has a zero byte in
// place of its blank and the terminator behind it.
char* dump_pairs(const char* bytes, std::size_t size, char*& block) {
  if (!prepare_block(block, 3 * size + 1)) return nullptr;
  put_hex_pairs(HexDigits::upper, block, bytes, size);
  block[3 * size] = '\0';
  if (size > 0) block[3 * size - 1] = '\0';
  return block;
}

constexpr std::size_t byte_count(int count) {
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

std::string Zeph_To_Ascii(const char* text) {
  return zeph::dump_numbers(text, std::strlen(text));
}

std::string Zeph_To_Ascii(const char* bytes, int count) {
  return zeph::dump_numbers(bytes, zeph::byte_count(count));
}

char* Zeph_To_Ascii(const char* text, char** buffer) {
  return zeph::dump_pairs(text, std::strlen(text), *buffer);
}

char* Zeph_To_Ascii(const char* bytes, int count, char** buffer) {
  return zeph::dump_pairs(bytes, zeph::byte_count(count), *buffer);
}

}  // namespace Orbane
