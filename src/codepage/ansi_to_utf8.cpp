// Code page 936 to UTF-8, by way of UTF-16 units without ever storing one.
#include <cstddef>
#include <cstdint>

#include "codepage/codepage_table.h"
#include "codepage/converted_text.h"
#include "scan/word.h"
#include "zeph.h"

namespace zeph {
namespace {

// The units from here on have three bytes.
constexpr unsigned first_three_byte_unit = 0x800;

char* put_unit(char* to, unsigned unit) {
  if (unit >= first_three_byte_unit) {
    *to++ = static_cast<char>(0xE0 | unit >> 12);
    *to++ = static_cast<char>(0x80 | (unit >> 6 & 0x3F));
    *to++ = static_cast<char>(0x80 | (unit & 0x3F));
  } else if (unit >= 0x80) {
    *to++ = static_cast<char>(0xC0 | unit >> 6);
    *to++ = static_cast<char>(0x80 | (unit & 0x3F));
  } else {
    *to++ = substitute;  // ASCII never comes here, so that the unit is 0: there is none
  }
  return to;
}

// The three bytes of each of two units side by side, the first one lowest: the bits of both move to
// their places together.
std::uint64_t six_bytes(std::uint64_t first, std::uint64_t second) {
  const std::uint64_t units = first | second << 24;
  return 0x8080E08080E0 | (units >> 12 & 0x00000F00000F) | (units << 2 & 0x003F00003F00) |
         (units << 16 & 0x3F00003F0000);
}

struct AnsiToUtf8 {
  static constexpr std::size_t growth = 3;

  static std::size_t expected_size(std::size_t size) {
    return size + size / 2;
  }

  // Two bytes that become three, four characters at once where there are as many.
  static Progress put_common_run(Progress at, const char* stop, const char* end) {
    constexpr std::uint64_t lead_bits = 0x8000800080008000;
    const char* from = at.from;
    char* to = at.to;
    for (; stop - from >= 8; from += 8, to += 12) {
      const std::uint64_t pairs = load_word_reversed(from);
      if ((pairs & lead_bits) != lead_bits) break;
      const std::uint16_t a = decoded_pairs[pairs >> 48 & 0x7FFF];
      const std::uint16_t b = decoded_pairs[pairs >> 32 & 0x7FFF];
      const std::uint16_t c = decoded_pairs[pairs >> 16 & 0x7FFF];
      const std::uint16_t d = decoded_pairs[pairs & 0x7FFF];
      if (a < first_three_byte_unit || b < first_three_byte_unit) break;
      if (c < first_three_byte_unit || d < first_three_byte_unit) break;
      store_word(to, six_bytes(a, b));
      store_word(to + 6, six_bytes(c, d));
    }
    for (; from < stop && end - from >= 2 && byte_at(from) >= 0x80; from += 2) {
      const unsigned unit = decoded_pairs[(byte_at(from) & 0x7F) << 8 | byte_at(from + 1)];
      if (unit < first_three_byte_unit) break;
      to = put_unit(to, unit);
    }
    return {from, to};
  }

  // A lead byte takes the next byte with it, whatever that is, but not the terminator.
  static Progress put_character(Progress at, const char* end) {
    const unsigned lead = byte_at(at.from) & 0x7F, single = decoded_singles[lead];
    if (single != 0 || end - at.from < 2) return {at.from + 1, put_unit(at.to, single)};
    return {at.from + 2, put_unit(at.to, decoded_pairs[lead << 8 | byte_at(at.from + 1)])};
  }
};

}  // namespace
}  // namespace zeph

namespace Orbane {

std::string Zeph_ANSI_to_UTF8(const char* text) {
  return zeph::converted_text<zeph::AnsiToUtf8>(text);
}

std::string Zeph_ANSI_to_UTF8(std::string& text) {
  return Zeph_ANSI_to_UTF8(text.c_str());
}

}  // namespace Orbane
