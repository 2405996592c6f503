#include <gtest/gtest.h>
#include <time.h>

#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/platform.h"

namespace {

// The zone of the process within a scope.
class Zone {
 public:
  explicit Zone(const char* name) {
    setenv("TZ", name, 1);
    tzset();
  }
  ~Zone() {
    unsetenv("TZ");
    tzset();
  }
};

long long clock_milliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

// What the local time is ahead of UTC in seconds, if it lies between two readings of the clock.
long long offset_now() {
  const long long before = clock_milliseconds();
  const zeph::LocalTime t = zeph::local_time();
  const long long after = clock_milliseconds();
  tm fields{};
  fields.tm_year = t.year - 1900;
  fields.tm_mon = t.month - 1;
  fields.tm_mday = t.day;
  fields.tm_hour = t.hour;
  fields.tm_min = t.minute;
  fields.tm_sec = t.second;
  const long long local = 1000LL * timegm(&fields) + t.millisecond;
  const long long quarters = std::llround(static_cast<double>(local - before) / 900000);
  EXPECT_GE(local - quarters * 900000, before);
  EXPECT_LE(local - quarters * 900000, after);
  return quarters * 900;
}

}  // namespace

TEST(Posix, LocalTimeFollowsTheZone) {
  const struct {
    const char* zone;
    long long offset;
  } rows[] = {{"UTC0", 0},
              {"CST-8", 28800},
              {"XST9:30", -34200},
              {"<+0545>-5:45", 20700},
              {"EST5EDT,0/0,J365/25", -14400},  // summer time all the year
              {":/no/such/zone", 0}};
  for (const auto& row : rows) {
    const Zone zone(row.zone);
    errno = 77;
    EXPECT_EQ(offset_now(), row.offset) << row.zone;
    EXPECT_EQ(errno, 77);
  }
}

TEST(Posix, LocalTimeFollowsSummerTimeWithinTheProcess) {
  const time_t change = time(nullptr) + 2;
  tm at{};
  gmtime_r(&change, &at);
  char rule[80];
  std::snprintf(rule, sizeof rule, "WIN0SUM,%d/%d:%d:%d,%d/0", at.tm_yday, at.tm_hour, at.tm_min,
                at.tm_sec, (at.tm_yday + 180) % 365);
  const Zone zone(rule);
  EXPECT_EQ(offset_now(), 0);
  std::this_thread::sleep_until(std::chrono::system_clock::from_time_t(change));
  EXPECT_EQ(offset_now(), 3600);
}

TEST(Posix, ErrnoBecomesTheWindowsCode) {
  // clang-format off
  const struct { int value, code; } rows[] = {
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
  for (const auto& row : rows) {
    errno = row.value;
    EXPECT_EQ(zeph::last_error(), static_cast<std::uint32_t>(row.code)) << row.value;
    EXPECT_EQ(errno, row.value);
  }
}
