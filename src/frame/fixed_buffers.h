// Texts in buffers of a fixed size.
#ifndef ZEPH_FRAME_FIXED_BUFFERS_H
#define ZEPH_FRAME_FIXED_BUFFERS_H

#include <cstddef>

#include "scan/move_bytes.h"

namespace zeph {

// The one text that stands in for NULL. Nobody writes to it.
inline constexpr char empty_text[1] = {'\0'};

// The content that a buffer of `size` bytes can hold beside the terminator. A negative size sets no
// limit. `size` is not 0.
constexpr std::size_t content_room(int size) {
  return size < 0 ? static_cast<std::size_t>(-1) : static_cast<std::size_t>(size) - 1;
}

// Writes the `size` bytes of `text` and a terminator to `out`. They may overlap.
inline void put_text(char* out, const char* text, std::size_t size) {
  move_bytes(out, text, size);
  out[size] = '\0';
}

}  // namespace zeph

#endif  // ZEPH_FRAME_FIXED_BUFFERS_H
