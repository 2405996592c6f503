#include "number/nearest_double.h"

#include <charconv>
#include <cstdlib>

#include "platform/platform.h"

namespace zeph {

// Rare: it stays out of the way of the others, who need no room on the stack.
[[gnu::cold, gnu::noinline]] double nearest_double(const char* begin, const char* end) {
  double value = 0.0;
  if (std::from_chars(begin, end, value).ec == std::errc()) return value;
  const ErrorStateKeeper keeper;
  return std::strtod(begin, nullptr);  // infinity or 0.0: no double comes near
}

}  // namespace zeph
