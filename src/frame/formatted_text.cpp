#include "frame/formatted_text.h"

#include <cstdio>

#include "platform/platform.h"

namespace zeph {

int format_list_bounded(char* buffer, std::size_t size, const char* format,
                        std::va_list arguments) {
  const ErrorStateKeeper keeper;
  std::va_list copy;
  va_copy(copy, arguments);
  const int length = std::vsnprintf(buffer, size, format, copy);
  va_end(copy);
  return length;
}

int format_bounded(char* buffer, std::size_t size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const int length = format_list_bounded(buffer, size, format, arguments);
  va_end(arguments);
  return length;
}

int scan_text(const char* text, const char* format, ...) {
  const ErrorStateKeeper keeper;
  std::va_list arguments;
  va_start(arguments, format);
  const int fields = std::vsscanf(text, format, arguments);
  va_end(arguments);
  return fields;
}

}  // namespace zeph
