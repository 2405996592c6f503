// Bytes as rows of hexadecimal numbers, in two styles: as few lower-case digits as a byte needs in
// Strings, two upper-case digits for each in owned buffers.
#include <algorithm>
#include <array>
#include <cstring>

#include "frame/owned_buffers.h"
#include "scan/hex_numbers.h"
#include "scan/hex_pairs.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr std::size_t block_size = 16;

constexpr bool has_one_digit(char byte) {
  return static_cast<unsigned char>(byte) < 0x10;
}

// The number of each byte with a blank behind it, and how many bytes that is.
struct Number {
  char text[3];
  char size;
};

constexpr auto numbers = [] {
  std::array<Number, 256> all{};
  const char* const digits = "0123456789abcdef";
  for (std::size_t i = 0; i < 16; ++i) all[i] = {{digits[i], ' ', ' '}, 2};
  for (std::size_t i = 16; i < 256; ++i) all[i] = {{digits[i / 16], digits[i % 16], ' '}, 3};
  return all;
}();

// Writes each number with a blank behind it; returns the place behind the last blank. Each is
// stored as a whole, so that up to two bytes behind that place are written. Inlined, a hardened
// build would check the room at each number.
[[gnu::noinline]] char* put_numbers(char* out, const char* bytes, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    const Number& number = numbers[static_cast<unsigned char>(bytes[i])];
    std::memcpy(out, &number, sizeof number);
    out += number.size;
  }
  return out;
}

// How many take one digit. Counts of parts fit a byte, so that compilers add up many at a step.
std::size_t count_short(const char* bytes, std::size_t size) {
  constexpr std::size_t part = 240;
  std::size_t count = 0;
  for (std::size_t i = 0; i < size; i += part) {
    const std::size_t end = std::min(i + part, size);
    unsigned char here = 0;
    for (std::size_t at = i; at < end; ++at)
      here = static_cast<unsigned char>(here + has_one_digit(bytes[at]));
    count += here;
  }
  return count;
}

// Blocks whose bytes all take two digits are pairs; the others go number by number where no wider
// way takes them.
std::string dump_long(const char* bytes, std::size_t size) {
  const std::size_t short_ones = count_short(bytes, size);
  std::string dump(3 * size - short_ones, '\0');
  char* out = dump.data();
  std::size_t done = 0;
#ifdef ZEPH_HAS_AVX512_VBMI2
  if (short_ones > 0 && has_avx512_vbmi2()) done = put_hex_numbers_avx512(out, bytes, size);
#endif
  for (std::size_t i = done; i < size; i += block_size) {
    const std::size_t n = std::min(block_size, size - i);
    if (short_ones == 0 || std::none_of(bytes + i, bytes + i + n, has_one_digit)) {
      put_hex_pairs(HexDigits::lower, out, bytes + i, n);
      out += 3 * n;
    } else {
      char block[3 * block_size + 1];
      const auto length = static_cast<std::size_t>(put_numbers(block, bytes + i, n) - block);
      std::memcpy(out, block, length);
      out += length;
    }
  }
  dump.pop_back();  // the blank behind the last number
  return dump;
}

// A short dump is made beside the heap, so that nothing has to be counted first.
std::string dump_numbers(const char* bytes, std::size_t size) {
  constexpr std::size_t most_near = 128;
  if (size > most_near) return dump_long(bytes, size);
  if (size == 0) return std::string();
  char near[3 * most_near + 1];
  const char* const end = put_numbers(near, bytes, size);
  return std::string(near, static_cast<std::size_t>(end - near) - 1);
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
