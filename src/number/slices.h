// Slices of a text. What lies behind one may continue the number, so that readers are told its end.
#ifndef ZEPH_NUMBER_SLICES_H
#define ZEPH_NUMBER_SLICES_H

#include <cstddef>

#include "frame/diagnostics.h"
#include "frame/fixed_buffers.h"
#include "frame/owned_buffers.h"

namespace zeph {

// Gives read() both ends of the slice and a work buffer with room for it as a byte text. False if
// the heap refuses the buffer, which the interface promises to ask for, and which is reported. A
// negative count is a size that no heap grants; the heap is not even asked. Always inlined, as what
// read() refers to would go through memory otherwise.
template <typename Read>
[[gnu::always_inline]] inline bool read_slice(const char* text, int start, int count, Read read) {
  if (count < 0) {
    report_refused_work_buffer();
    return false;
  }
  const auto size = static_cast<std::size_t>(count);
  const WorkBuffers<1> work(size + 1);
  if (!work.complete()) return false;
  return read(text + start, text + start + size, work[0]);
}

// Cuts the slice into the caller's buffer and converts it. No buffer has room for a negative count,
// not even for a terminator: the buffer stays as it is and the result is 0.
template <typename Convert>
auto convert_slice(const char* text, int start, int count, char* buffer, Convert convert) {
  using Number = decltype(convert(buffer));
  if (count < 0) return Number{0};
  put_text(buffer, text + start, static_cast<std::size_t>(count));
  return convert(buffer);
}

// What the lenient readers' own buffer takes, terminator not counted.
constexpr unsigned int longest_short_slice = 255;

// The same in a buffer of our own. It stays out of the way of those who need no room on the stack.
template <typename Convert>
[[gnu::noinline]] auto convert_copy(const char* text, int start, int count, Convert convert) {
  char buffer[longest_short_slice + 1];
  return convert_slice(text, start, count, buffer, convert);
}

// Converts a slice where it stands, if convert_most(begin, end, number) settles it, and as a byte
// text otherwise. A slice too long for that, which a negative count is as an unsigned number, is
// reported with `message`, and the result is 0.
template <typename Most, typename Convert>
auto convert_short_slice(const char* text, int start, int count, const char* message,
                         Most convert_most, Convert convert) {
  using Number = decltype(convert(text));
  if (static_cast<unsigned int>(count) > longest_short_slice) {
    Diag_Banner("%s", message);
    return Number{0};
  }
  Number number;
  if (convert_most(text + start, text + start + count, number)) return number;
  return convert_copy(text, start, count, convert);
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_SLICES_H
