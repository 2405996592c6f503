#include <gtest/gtest.h>
#include <time.h>

#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/platform.h"
#include "support/table.h"
#include "zeph.h"

using zeph_test::each_row;

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
    const char* why;
    const char* zone;
    long long offset;
  } rows[] = {
      {"UTC", "UTC0", 0},
      {"east", "CST-8", 28800},
      {"west", "XST9:30", -34200},
      {"a quarter", "<+0545>-5:45", 20700},
      {"more than half a day", "<+14>-14", 50400},
      {"summer time all year", "EST5EDT,0/0,J365/25", -14400},
      {"no such zone is UTC", ":/no/such/zone", 0},
  };
  each_row(rows, [](const auto& row) {
    const Zone zone(row.zone);
    errno = 77;
    const long long offset = offset_now();
    EXPECT_EQ(errno, 77);
    EXPECT_EQ(offset, row.offset);
  });
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
  const struct { int code; int errnos[3]; } rows[] = {
      {2, {ENOENT}}, {4, {EMFILE, ENFILE}}, {5, {EACCES, EISDIR, EPERM}}, {6, {EBADF, EIDRM}},
      {8, {ENOBUFS, ENOMEM, ENOSR}}, {13, {EBADMSG}}, {17, {EXDEV}}, {19, {EROFS}}, {20, {ENODEV}},
      {32, {ETXTBSY}}, {50, {ENOTSUP, EOPNOTSUPP}}, {59, {EPROTO}}, {64, {ECONNRESET, ENOLINK}},
      {87, {EDOM, EINVAL}}, {105, {EOWNERDEAD}}, {109, {EPIPE}}, {112, {ENOSPC}},
      {117, {ENOSTR, ENOTTY}}, {119, {ENOSYS}}, {128, {ECHILD}}, {132, {ESPIPE}},
      {145, {ENOTEMPTY}}, {160, {E2BIG}}, {167, {ENOLCK}}, {170, {EBUSY}}, {183, {EEXIST}},
      {193, {ENOEXEC}}, {206, {ENAMETOOLONG}}, {223, {EFBIG}}, {259, {ENODATA, ENOMSG}},
      {267, {ENOTDIR}}, {487, {EFAULT}}, {534, {EOVERFLOW, ERANGE}}, {995, {ECANCELED}},
      {997, {EINPROGRESS}}, {1006, {ESTALE}}, {1113, {EILSEQ}}, {1117, {EIO}}, {1131, {EDEADLK}},
      {1142, {EMLINK}}, {1167, {ENXIO}}, {1168, {ESRCH}}, {1222, {ENETDOWN}},
      {1225, {ECONNREFUSED}}, {1229, {ENOTCONN}}, {1230, {EISCONN}}, {1231, {ENETUNREACH}},
      {1232, {EHOSTUNREACH}}, {1235, {EINTR}}, {1236, {ECONNABORTED}},
      {1237, {EAGAIN, EWOULDBLOCK}}, {1241, {EADDRNOTAVAIL}}, {1295, {EDQUOT}},
      {1460, {ETIME, ETIMEDOUT}}, {1921, {ELOOP}}, {10037, {EALREADY}}, {10038, {ENOTSOCK}},
      {10039, {EDESTADDRREQ}}, {10040, {EMSGSIZE}}, {10041, {EPROTOTYPE}}, {10042, {ENOPROTOOPT}},
      {10043, {EPROTONOSUPPORT}}, {10044, {ESOCKTNOSUPPORT}}, {10046, {EPFNOSUPPORT}},
      {10058, {ESHUTDOWN}}, {10059, {ETOOMANYREFS}}, {10064, {EHOSTDOWN}}, {10068, {EUSERS}},
      {10071, {EREMOTE}}, {10047, {EAFNOSUPPORT}}, {10048, {EADDRINUSE}},
      {10052, {ENETRESET}}, {0, {0}}, {ENOTRECOVERABLE, {ENOTRECOVERABLE}}, {1339, {1339}},
      {-1, {-1}},
  };
  // clang-format on
  for (const auto& row : rows) {
    for (const int value : row.errnos) {
      if (value == 0 && row.code != 0) continue;  // the rest of a short row
      errno = value;
      EXPECT_EQ(zeph::last_error(), static_cast<std::uint32_t>(row.code)) << value;
      EXPECT_EQ(errno, value);
    }
  }
}
