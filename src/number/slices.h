// Slices of a text as byte texts of their own: what lies behind a slice may continue the number, so
// that the readers need a terminator that the text itself does not have.
#ifndef ZEPH_NUMBER_SLICES_H
#define ZEPH_NUMBER_SLICES_H

#include <cstddef>

#include "frame/diagnostics.h"
#include "frame/fixed_buffers.h"
#include "frame/owned_buffers.h"

namespace zeph {

// Gives read() the slice in a work buffer. False if the heap refuses the buffer, which is reported.
// A negative count is a size that no heap grants; the heap is not even asked.
template <typename Read>
bool read_slice(const char* text, int start, int count, Read read) {
  if (count < 0) {
    report_refused_work_buffer();
    return false;
  }
  const auto size = static_cast<std::size_t>(count);
  const WorkBuffers<1> work(size + 1);
  if (!work.complete()) return false;
  put_text(work[0], text + start, size);
  return read(work[0]);
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

// The same in a buffer of our own. A longer slice, which a negative count is as an unsigned number,
// is reported with `message`, and the result is 0.
template <typename Convert>
auto convert_short_slice(const char* text, int start, int count, const char* message,
                         Convert convert) {
  char buffer[longest_short_slice + 1];
  using Number = decltype(convert(buffer));
  if (static_cast<unsigned int>(count) > longest_short_slice) {
    Diag_Banner("%s", message);
    return Number{0};
  }
  return convert_slice(text, start, count, buffer, convert);
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_SLICES_H
