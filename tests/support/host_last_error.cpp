#include "support/host_last_error.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>

namespace {
std::uint32_t last_error = 0;
}

extern "C" {
std::uint32_t GetLastError() {
  errno = EDOM;  // a host's function may spoil it
  return last_error;
}
static void SetLastError(std::uint32_t code) {
  last_error = code;
}
}
#endif

namespace zeph_test {

void set_last_error(std::uint32_t code) {
  SetLastError(code);
}

std::uint32_t get_last_error() {
  return GetLastError();
}

}  // namespace zeph_test
