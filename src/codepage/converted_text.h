// The frame of both conversions. A text goes piece by piece through a small buffer into the result,
// so that nothing is measured first, no piece can overflow, and the result is the only heap block.
#ifndef ZEPH_CODEPAGE_CONVERTED_TEXT_H
#define ZEPH_CODEPAGE_CONVERTED_TEXT_H

#include <cstddef>
#include <cstring>
#include <string>

#include "scan/ascii_run.h"

namespace zeph {

// What stands for a sequence or a character that cannot be converted.
constexpr char substitute = '?';

// Where a conversion reads next and where it writes next.
struct Progress {
  const char* from;
  char* to;
};

inline unsigned byte_at(const char* at) {
  return static_cast<unsigned char>(*at);
}

// A `Conversion` has
//   growth            how many bytes one byte can become at most;
//   expected_size(n)  how many bytes n bytes of a long text become, rather too many than too few;
//   put_common_run(at, stop, end)
//                     which converts common characters until something else comes, at once maybe;
//                     each of them starts in front of `stop`;
//   put_character(at, end)
//                     which converts whatever stands there, ASCII excepted.
// Neither reads from `end` on, and both may write into the ascii_step bytes behind their result.

// Room for what `size` bytes become, and a character that reaches past them.
template <typename Conversion>
struct Piece {
  static constexpr std::size_t size = 1024;
  static constexpr std::size_t longest_character = 4;
  char bytes[Conversion::growth * (size + longest_character) + ascii_step];
};

// Converts the characters that start in front of `stop`.
template <typename Conversion>
Progress put_piece(Progress at, const char* stop, const char* end) {
  while (at.from < stop) {
    if (byte_at(at.from) < 0x80) {
      const std::size_t run = copy_ascii_run(at.to, at.from, stop);
      at = {at.from + run, at.to + run};
      continue;
    }
    const Progress run = Conversion::put_common_run(at, stop, end);
    at = run.from != at.from ? run : Conversion::put_character(at, end);
  }
  return at;
}

// The first reservation is the only one, unless a text grows more than texts do.
template <typename Conversion>
std::string converted_long_text(const char* text, const char* end) {
  Piece<Conversion> piece;
  std::string result;
  result.reserve(Conversion::expected_size(static_cast<std::size_t>(end - text)));
  while (text != end) {
    // A long run of ASCII needs no buffer in between.
    const std::size_t run = ascii_run(text, end);
    if (run >= piece.size) {
      result.append(text, run);
      text += run;
    }
    const auto left = static_cast<std::size_t>(end - text);
    const char* const stop = left < piece.size ? end : text + piece.size;
    const Progress done = put_piece<Conversion>({text, piece.bytes}, stop, end);
    result.append(piece.bytes, done.to);
    text = done.from;
  }
  return result;
}

// Converts the byte text `text`; NULL is the empty text.
template <typename Conversion>
std::string converted_text(const char* text) {
  if (text == nullptr) return {};
  Piece<Conversion> piece;
  const std::size_t size = std::strlen(text);
  const char* const end = text + size;
  if (size > piece.size) return converted_long_text<Conversion>(text, end);
  return {piece.bytes, put_piece<Conversion>({text, piece.bytes}, end, end).to};
}

}  // namespace zeph

#endif  // ZEPH_CODEPAGE_CONVERTED_TEXT_H
