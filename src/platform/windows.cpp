// The platform on Windows.
#define WIN32_LEAN_AND_MEAN
#include <malloc.h>
#include <windows.h>

#include <cerrno>

#include "platform/platform.h"

namespace zeph {

LocalTime local_time() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

std::uint32_t last_error() {
  return GetLastError();
}

std::size_t block_capacity(void* block) {
  return _msize(block);
}

ErrorState error_state() {
  return {errno, GetLastError()};
}

void restore_error_state(const ErrorState& state) {
  errno = state.errno_value;
  SetLastError(state.system_error);
}

}  // namespace zeph
