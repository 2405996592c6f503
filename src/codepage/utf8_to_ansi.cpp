// UTF-8 to code page 936, by way of UTF-16 units without ever storing one.
#include <cstddef>
#include <cstdint>

#include "codepage/codepage_table.h"
#include "codepage/converted_text.h"
#include "scan/word.h"
#include "zeph.h"

namespace zeph {
namespace {

bool is_continuation(unsigned byte) {
  return (byte & 0xC0) == 0x80;
}

// What a continuation byte carries.
unsigned payload(unsigned byte) {
  return byte & 0x3F;
}

unsigned two_byte_code(const char* from) {
  const unsigned lead = byte_at(from), last = byte_at(from + 1);
  return encoded_cells[two_byte_blocks[lead & 0x1F] + payload(last)];
}

// The code of a character of three bytes, zero if these bytes are none or if it has no code.
unsigned three_byte_code(const char* from) {
  const unsigned lead = byte_at(from), middle = byte_at(from + 1), last = byte_at(from + 2);
  if ((lead & 0xF0) != 0xE0 || !is_continuation(middle) || !is_continuation(last)) return 0;
  return encoded_cells[three_byte_blocks[(lead & 0x0F) << 6 | payload(middle)] + payload(last)];
}

// Two characters of three bytes in the low six bytes of a word: the bits that make them such, and
// the codes of both, the first one higher.
constexpr std::uint64_t shape_mask = 0xC0C0F0C0C0F0, shape = 0x8080E08080E0;

std::uint64_t two_codes(std::uint64_t bytes) {
  // The product puts the payload of each lead byte above that of its middle byte.
  const std::uint64_t blocks = (bytes & 0x003F0F003F0F) * 0x4001;
  const std::size_t first = three_byte_blocks[blocks >> 8 & 0x3FF] + (bytes >> 16 & 0x3F);
  const std::size_t second = three_byte_blocks[blocks >> 32 & 0x3FF] + (bytes >> 40 & 0x3F);
  return std::uint64_t{encoded_cells[first]} << 16 | encoded_cells[second];
}

// What stands at the front of a text: a character, or as much as could have begun one.
struct Sequence {
  std::size_t size;
  bool well_formed;
};

// Takes as many bytes as a well-formed sequence could begin with, at least one. That is the
// practice which the Unicode Standard recommends (section 3.9, "U+FFFD Substitution of Maximal
// Subparts"): each such part is replaced once. The second byte alone has bounds of its own; they
// keep out what is overlong, half of a surrogate pair or beyond U+10FFFF.
Sequence next_sequence(const char* from, const char* end) {
  const unsigned lead = byte_at(from);
  if (lead < 0xC2 || lead > 0xF4) return {1, false};
  const std::size_t whole = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  std::size_t size = 1;
  for (; size != whole && from + size != end; ++size) {
    const unsigned byte = byte_at(from + size);
    if (byte < lowest || byte > highest) break;
    lowest = 0x80;
    highest = 0xBF;
  }
  return {size, size == whole};
}

char* put_code(char* to, unsigned code) {
  if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
  *to++ = static_cast<char>(code != 0 ? code : substitute);
  return to;
}

struct Utf8ToAnsi {
  static constexpr std::size_t growth = 1;

  static std::size_t expected_size(std::size_t size) {
    return size;
  }

  // Three bytes that become two, four characters at once where there are as many.
  static Progress put_common_run(Progress at, const char* stop, const char* end) {
    constexpr std::uint64_t lead_bits = 0x8000800080008000;
    const char* from = at.from;
    char* to = at.to;
    for (; stop - from >= 12; from += 12, to += 8) {
      // The second load ends with the fourth character, and starts in the second one.
      const std::uint64_t front = load_word(from), back = load_word(from + 4) >> 16;
      if ((((front & shape_mask) ^ shape) | ((back & shape_mask) ^ shape)) != 0) break;
      const std::uint64_t codes = two_codes(front) << 32 | two_codes(back);
      if ((codes & lead_bits) != lead_bits) break;
      store_word_reversed(to, codes);
    }
    for (; from < stop && end - from >= 3; from += 3) {
      const unsigned code = three_byte_code(from);
      if (code == 0) break;
      to = put_code(to, code);
    }
    return {from, to};
  }

  static Progress put_character(Progress at, const char* end) {
    const Sequence sequence = next_sequence(at.from, end);
    unsigned code = 0;
    if (sequence.well_formed && sequence.size == 2) code = two_byte_code(at.from);
    if (sequence.well_formed && sequence.size == 3) code = three_byte_code(at.from);
    char* to = put_code(at.to, code);
    // A character beyond U+FFFF is two units, and neither has a code.
    if (sequence.well_formed && sequence.size == 4) to = put_code(to, 0);
    return {at.from + sequence.size, to};
  }
};

}  // namespace
}  // namespace zeph

namespace Orbane {

std::string Zeph_UTF8_to_ANSI(const char* text) {
  return zeph::converted_text<zeph::Utf8ToAnsi>(text);
}

std::string Zeph_UTF8_to_ANSI(std::string& text) {
  return Zeph_UTF8_to_ANSI(text.c_str());
}

}  // namespace Orbane
