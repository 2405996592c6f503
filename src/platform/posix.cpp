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

// errno values and the Windows codes that mean the same; where several do, the one whose message
// says it best. It covers what POSIX and the sockets name and Windows has; any other value stands
// for itself. On some systems two of the names are one value.
// clang-format off
constexpr ErrorPair error_pairs[] = {
    {E2BIG, 160}, {EACCES, 5}, {EADDRINUSE, 10048}, {EADDRNOTAVAIL, 1241}, {EAFNOSUPPORT, 10047},
    {EAGAIN, 1237}, {EALREADY, 10037}, {EBADF, 6}, {EBADMSG, 13}, {EBUSY, 170}, {ECANCELED, 995},
    {ECHILD, 128}, {ECONNABORTED, 1236}, {ECONNREFUSED, 1225}, {ECONNRESET, 64}, {EDEADLK, 1131},
    {EDESTADDRREQ, 10039}, {EDOM, 87}, {EDQUOT, 1295}, {EEXIST, 183}, {EFAULT, 487}, {EFBIG, 223},
    {EHOSTDOWN, 10064}, {EHOSTUNREACH, 1232}, {EIDRM, 6}, {EILSEQ, 1113}, {EINPROGRESS, 997},
    {EINTR, 1235}, {EINVAL, 87}, {EIO, 1117}, {EISCONN, 1230}, {EISDIR, 5}, {ELOOP, 1921},
    {EMFILE, 4}, {EMLINK, 1142}, {EMSGSIZE, 10040}, {ENAMETOOLONG, 206}, {ENETDOWN, 1222},
    {ENETRESET, 10052}, {ENETUNREACH, 1231}, {ENFILE, 4}, {ENOBUFS, 8}, {ENODATA, 259},
    {ENODEV, 20}, {ENOENT, 2}, {ENOEXEC, 193}, {ENOLCK, 167}, {ENOLINK, 64}, {ENOMEM, 8},
    {ENOMSG, 259}, {ENOPROTOOPT, 10042}, {ENOSPC, 112}, {ENOSR, 8}, {ENOSTR, 117}, {ENOSYS, 119},
    {ENOTCONN, 1229}, {ENOTDIR, 267}, {ENOTEMPTY, 145}, {ENOTSOCK, 10038}, {ENOTSUP, 50},
    {ENOTTY, 117}, {ENXIO, 1167}, {EOPNOTSUPP, 50}, {EOVERFLOW, 534}, {EOWNERDEAD, 105}, {EPERM, 5},
    {EPFNOSUPPORT, 10046}, {EPIPE, 109}, {EPROTO, 59}, {EPROTONOSUPPORT, 10043},
    {EPROTOTYPE, 10041}, {ERANGE, 534}, {EREMOTE, 10071}, {EROFS, 19}, {ESHUTDOWN, 10058},
    {ESOCKTNOSUPPORT, 10044}, {ESPIPE, 132}, {ESRCH, 1168}, {ESTALE, 1006}, {ETIME, 1460},
    {ETIMEDOUT, 1460}, {ETOOMANYREFS, 10059}, {ETXTBSY, 32}, {EUSERS, 10068}, {EWOULDBLOCK, 1237},
    {EXDEV, 17},
};
// clang-format on

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
  // localtime_r takes the zone that the runtime holds: unlike localtime it does not look up the
  // zone's file at each call, and it knows the changes of the offset all the same.
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
  if (GetLastError) {
    const ErrorStateKeeper keeper;
    return GetLastError();
  }
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
