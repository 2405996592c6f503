#include "frame/diagnostics.h"

#include <cstdarg>
#include <cstdio>

#include "platform/platform.h"

namespace zeph {
namespace {

constexpr char rule_line[] = "------------------------------------------------";
static_assert(sizeof rule_line == 48 + 1);

[[gnu::format(printf, 1, 0)]] void print(const char* format, std::va_list arguments) {
  const ErrorStateKeeper keeper;
  std::vprintf(format, arguments);
}

}  // namespace

void Diag_Print(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  print(format, arguments);
  va_end(arguments);
}

void Diag_Banner(const char* format, ...) {
  Diag_Print("%s", rule_line);
  std::va_list arguments;
  va_start(arguments, format);
  print(format, arguments);
  va_end(arguments);
  Diag_Print("%s", rule_line);
}

}  // namespace zeph
