// The platform on POSIX systems.
#include <malloc.h>
#include <time.h>

#include <array>
#include <cerrno>

#include "platform/platform.h"

// Hosts that were ported from Windows may carry this function; where one does, it is asked.
extern "C" __attribute__((weak)) std::uint32_t GetLastError(void);

namespace zeph {
namespace {

struct ErrorPair {
  int posix;
  std::uint16_t windows;
};

// errno values and the Windows codes that mean the same. A value without a row stands for itself.
constexpr ErrorPair error_pairs[] = {
    {EPERM, 5},           {ENOENT, 2},          {EINTR, 995},         {EIO, 1117},
    {ENOEXEC, 193},       {EBADF, 6},           {ECHILD, 128},        {ENOMEM, 8},
    {EACCES, 5},          {EFAULT, 998},        {EBUSY, 170},         {EEXIST, 183},
    {EXDEV, 17},          {ENODEV, 55},         {ENOTDIR, 267},       {EINVAL, 87},
    {EMFILE, 4},          {EFBIG, 223},         {ENOSPC, 112},        {ESPIPE, 25},
    {EROFS, 19},          {EMLINK, 1142},       {EPIPE, 109},         {ERANGE, 534},
    {EDEADLK, 1131},      {ENAMETOOLONG, 206},  {ENOSYS, 120},        {ENOTEMPTY, 145},
    {ELOOP, 1921},        {EILSEQ, 1113},       {ENOTSUP, 50},        {ETIMEDOUT, 1460},
    {ECANCELED, 1223},    {ECONNREFUSED, 1225}, {ECONNABORTED, 1236}, {ENETUNREACH, 1231},
    {EHOSTUNREACH, 1232}, {EADDRINUSE, 1227},
};

constexpr int highest_errno() {
  int highest = 0;
  for (const ErrorPair& pair : error_pairs) {
    if (pair.posix > highest) highest = pair.posix;
  }
  return highest;
}

// Windows codes by errno; 0 where the value stands for itself.
constexpr auto code_by_errno = [] {
  std::array<std::uint16_t, highest_errno() + 1> codes{};
  for (const ErrorPair& pair : error_pairs) {
    codes[static_cast<std::size_t>(pair.posix)] = pair.windows;
  }
  return codes;
}();

}  // namespace

LocalTime local_time() {
  const ErrorStateKeeper keeper;
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm fields{};
  localtime_r(&now.tv_sec, &fields);
  return {fields.tm_year + 1900,
          fields.tm_mon + 1,
          fields.tm_mday,
          fields.tm_hour,
          fields.tm_min,
          fields.tm_sec,
          static_cast<int>(now.tv_nsec / 1000000)};
}

std::uint32_t last_error() {
  if (GetLastError) return GetLastError();
  const auto value = static_cast<std::uint32_t>(errno);
  if (value < code_by_errno.size() && code_by_errno[value] != 0) return code_by_errno[value];
  return value;
}

std::size_t block_capacity(void* block) {
  return malloc_usable_size(block);
}

// A host's own GetLastError is the host's business: the library calls nothing that changes it.
ErrorState error_state() {
  return {errno, 0};
}

void restore_error_state(const ErrorState& state) {
  errno = state.errno_value;
}

}  // namespace zeph
