#include <gtest/gtest.h>
#include <time.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/platform.h"
#include "platform/posix_table.h"
#include "support/table.h"

using namespace zeph_test;

namespace {

void set_zone(const char* name) {
  setenv("TZ", name, 1);
  tzset();
}

long long clock_milliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

// The local time is `offset` seconds ahead of UTC, between two readings of the clock.
void expect_offset(long long offset) {
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
  const long long local = 1000LL * (timegm(&fields) - offset) + t.millisecond;
  EXPECT_GE(local, before);
  EXPECT_LE(local, after);
}

}  // namespace

TEST(Posix, LocalTimeFollowsTheZone) {
  each_row(zones, [](const auto& row) {
    set_zone(row.zone);
    expect_offset(row.offset);
  });
}

TEST(Posix, LocalTimeFollowsSummerTimeWithinTheProcess) {
  const time_t change = time(nullptr) + 2;
  tm at{};
  gmtime_r(&change, &at);
  char rule[80];
  std::snprintf(rule, sizeof rule, "WIN0SUM,%d/%d:%d:%d,%d/0", at.tm_yday, at.tm_hour, at.tm_min,
                at.tm_sec, (at.tm_yday + 180) % 365);
  set_zone(rule);
  expect_offset(0);
  std::this_thread::sleep_until(std::chrono::system_clock::from_time_t(change));
  expect_offset(3600);
}

TEST(Posix, CapacityCoversTheRequest) {
  void* const block = std::malloc(100);
  EXPECT_GE(zeph::block_capacity(block), 100U);
  std::free(block);
}

TEST(Posix, ErrnoBecomesTheWindowsCode) {
  for (const auto& row : error_codes) {
    errno = row.value;
    EXPECT_EQ(zeph::last_error(), static_cast<std::uint32_t>(row.code)) << row.value;
    EXPECT_EQ(errno, row.value);
  }
}
