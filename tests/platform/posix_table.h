// Time zones and how far they are ahead of UTC, and what the values of errno become.
#ifndef ZEPH_TESTS_PLATFORM_POSIX_TABLE_H
#define ZEPH_TESTS_PLATFORM_POSIX_TABLE_H

#include <cerrno>

namespace zeph_test {

const struct {
  const char* why;
  const char* zone;
  long long offset;
} zones[] = {
    {"UTC", "UTC0", 0},
    {"east", "CST-8", 28800},
    {"west", "XST9:30", -34200},
    {"a quarter", "<+0545>-5:45", 20700},
    {"more than half a day", "<+14>-14", 50400},
    {"summer time all year", "EST5EDT,0/0,J365/25", -14400},
    {"no such zone is UTC", ":/no/such/zone", 0},
};

// clang-format off
const struct { int value, code; } error_codes[] = {
    {ENOENT, 2}, {EMFILE, 4}, {ENFILE, 4}, {EACCES, 5}, {EISDIR, 5}, {EPERM, 5}, {EBADF, 6},
    {EIDRM, 6}, {ENOBUFS, 8}, {ENOMEM, 8}, {ENOSR, 8}, {EBADMSG, 13}, {EXDEV, 17}, {EROFS, 19},
    {ENODEV, 20}, {ETXTBSY, 32}, {ENOTSUP, 50}, {EOPNOTSUPP, 50}, {EPROTO, 59}, {ECONNRESET, 64},
    {ENOLINK, 64}, {EDOM, 87}, {EINVAL, 87}, {EOWNERDEAD, 105}, {EPIPE, 109}, {ENOSPC, 112},
    {ENOSTR, 117}, {ENOTTY, 117}, {ENOSYS, 119}, {ECHILD, 128}, {ESPIPE, 132}, {ENOTEMPTY, 145},
    {E2BIG, 160}, {ENOLCK, 167}, {EBUSY, 170}, {EEXIST, 183}, {ENOEXEC, 193}, {ENAMETOOLONG, 206},
    {EFBIG, 223}, {ENODATA, 259}, {ENOMSG, 259}, {ENOTDIR, 267}, {EFAULT, 487}, {EOVERFLOW, 534},
    {ERANGE, 534}, {ECANCELED, 995}, {EINPROGRESS, 997}, {ESTALE, 1006}, {EILSEQ, 1113},
    {EIO, 1117}, {EDEADLK, 1131}, {EMLINK, 1142}, {ENXIO, 1167}, {ESRCH, 1168}, {ENETDOWN, 1222},
    {ECONNREFUSED, 1225}, {ENOTCONN, 1229}, {EISCONN, 1230}, {ENETUNREACH, 1231},
    {EHOSTUNREACH, 1232}, {EINTR, 1235}, {ECONNABORTED, 1236}, {EAGAIN, 1237},
    {EWOULDBLOCK, 1237}, {EADDRNOTAVAIL, 1241}, {EDQUOT, 1295}, {ETIME, 1460}, {ETIMEDOUT, 1460},
    {ELOOP, 1921}, {EALREADY, 10037}, {ENOTSOCK, 10038}, {EDESTADDRREQ, 10039}, {EMSGSIZE, 10040},
    {EPROTOTYPE, 10041}, {ENOPROTOOPT, 10042}, {EPROTONOSUPPORT, 10043}, {EAFNOSUPPORT, 10047},
    {EADDRINUSE, 10048}, {ENETRESET, 10052}, {ESOCKTNOSUPPORT, 10044}, {EPFNOSUPPORT, 10046},
    {ESHUTDOWN, 10058}, {ETOOMANYREFS, 10059}, {EHOSTDOWN, 10064}, {EUSERS, 10068},
    {EREMOTE, 10071}, {0, 0}, {ENOTRECOVERABLE, ENOTRECOVERABLE}, {1339, 1339}, {-1, -1},
};
// clang-format on

}  // namespace zeph_test

#endif  // ZEPH_TESTS_PLATFORM_POSIX_TABLE_H
