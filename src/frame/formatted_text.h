// The formats of the runtime's printf and scanf families. All follow the process's locale; none
// changes it. The compiler checks the formats.
#ifndef ZEPH_FRAME_FORMATTED_TEXT_H
#define ZEPH_FRAME_FORMATTED_TEXT_H

#include <cstdarg>
#include <cstddef>

namespace zeph {

// Writes at most size - 1 bytes and a terminator; what does not fit is cut. With size 0 nothing is
// written. Returns the length of the whole text, or -1 for any failure. The form with a list leaves
// the list as it was, so that it can be printed again.
[[gnu::format(printf, 3, 4)]] int format_bounded(char* buffer, std::size_t size, const char* format,
                                                 ...);
[[gnu::format(printf, 3, 0)]] int format_list_bounded(char* buffer, std::size_t size,
                                                      const char* format, std::va_list arguments);

// Reads values out of the byte text. Returns the number of fields converted.
[[gnu::format(scanf, 2, 3)]] int scan_text(const char* text, const char* format, ...);

}  // namespace zeph

#endif  // ZEPH_FRAME_FORMATTED_TEXT_H
