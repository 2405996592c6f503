#include <gtest/gtest.h>
#include <time.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>

#include "platform/platform.h"
#include "platform/posix_table.h"
#include "support/table.h"

using namespace zeph_test;

namespace {

long long clock_milliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace

// The local time is `offset` seconds ahead of UTC, between two readings of the clock.
TEST(Posix, LocalTimeFollowsTheZone) {
  each_row(zones, [](const auto& row) {
    setenv("TZ", row.zone, 1);
    tzset();
    errno = 77;
    const long long before = clock_milliseconds();
    const zeph::LocalTime t = zeph::local_time();
    const long long after = clock_milliseconds();
    EXPECT_EQ(errno, 77);
    tm fields{};
    fields.tm_year = t.year - 1900;
    fields.tm_mon = t.month - 1;
    fields.tm_mday = t.day;
    fields.tm_hour = t.hour;
    fields.tm_min = t.minute;
    fields.tm_sec = t.second;
    const long long local = 1000LL * (timegm(&fields) - row.offset) + t.millisecond;
    EXPECT_GE(local, before);
    EXPECT_LE(local, after);
  });
}

TEST(Posix, ErrnoBecomesTheWindowsCode) {
  for (const auto& row : error_codes) {
    errno = row.value;
    EXPECT_EQ(zeph::last_error(), static_cast<std::uint32_t>(row.code)) << row.value;
    EXPECT_EQ(errno, row.value);
  }
}
