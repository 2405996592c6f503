#include "time/stamps.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cstdio>
#include <ctime>
#include <set>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using zeph::LocalTime;
using zeph_test::each_row;
using zeph_test::GuardedBuffer;

namespace {

std::string stamp(const zeph::StampForm& form, const LocalTime& time, std::size_t size) {
  const GuardedBuffer out(size);
  zeph::put_stamp(form, time, out.data(), size);
  return out.data();
}

// The five stamps in rooms of `size` bytes must be what the formats give there.
void expect_as_formatted(const LocalTime& t, std::size_t size) {
  char date[128], time[128], time_ms[128], date_time[128], date_time_ms[128];
  std::snprintf(date, size, "%04d/%02d/%02d", t.year, t.month, t.day);
  std::snprintf(time, size, "%02d:%02d:%02d", t.hour, t.minute, t.second);
  std::snprintf(time_ms, size, "%02d:%02d:%02d.%03d", t.hour, t.minute, t.second, t.millisecond);
  std::snprintf(date_time, size, "%04d/%02d/%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour,
                t.minute, t.second);
  std::snprintf(date_time_ms, size, "%02d/%02d/%02d %02d:%02d:%02d.%03d", t.year, t.month, t.day,
                t.hour, t.minute, t.second, t.millisecond);
  EXPECT_EQ(stamp(zeph::date_form, t, size), date);
  EXPECT_EQ(stamp(zeph::time_form, t, size), time);
  EXPECT_EQ(stamp(zeph::time_ms_form, t, size), time_ms);
  EXPECT_EQ(stamp(zeph::date_time_form, t, size), date_time);
  EXPECT_EQ(stamp(zeph::date_time_ms_form, t, size), date_time_ms);
}

// The present second, or the empty text near its ends: a system's clocks differ by some
// milliseconds.
std::string second_of_runtime() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const auto milliseconds_in = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
  if (milliseconds_in < 50 || milliseconds_in > 950) return "";
  const std::time_t seconds = system_clock::to_time_t(now);
  char text[32];
  std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", std::localtime(&seconds));
  return text;
}

}  // namespace

TEST(Stamps, ShowEveryFieldInItsWidth) {
  const struct {
    const char* why;
    LocalTime time;
    const char* all;
  } rows[] = {
      {"two digits each", {2025, 7, 29, 8, 5, 9, 42}, "2025/07/29 08:05:09.042"},
      {"the least values", {1601, 1, 1, 0, 0, 0, 7}, "1601/01/01 00:00:00.007"},
      {"the greatest values", {9999, 12, 31, 23, 59, 60, 999}, "9999/12/31 23:59:60.999"},
  };
  each_row(rows, [](const auto& row) {
    const std::string all = row.all;
    EXPECT_EQ(stamp(zeph::date_form, row.time, 16), all.substr(0, 10));
    EXPECT_EQ(stamp(zeph::time_form, row.time, 16), all.substr(11, 8));
    EXPECT_EQ(stamp(zeph::time_ms_form, row.time, 16), all.substr(11));
    EXPECT_EQ(stamp(zeph::date_time_form, row.time, 24), all.substr(0, 19));
    EXPECT_EQ(stamp(zeph::date_time_ms_form, row.time, 32), all);
  });
}

TEST(Stamps, AreWhatTheFormatsGiveForAnyNumber) {
  for (int i = 0; i < 1000; ++i) expect_as_formatted({i * 31, i % 100, i, i, i, i, i}, 100);
  for (const int n : {INT_MIN, -1000, -999, -25, -7, -1, 9999, 10000, INT_MAX}) {
    for (std::size_t size = 1; size < 100; ++size) expect_as_formatted({n, n, n, n, n, n, n}, size);
  }
}

TEST(Stamps, TellTheTimeInBuffersOfTheirOwn) {
  std::string before, after;
  const char *date, *time, *time_ms, *date_time, *date_time_ms;
  do {  // until all of it falls into one second
    before = second_of_runtime();
    date = Orbane::Zeph_Get_Date();
    time = Orbane::Zeph_Get_Time();
    time_ms = Orbane::Zeph_Get_Time2();
    date_time = Orbane::Zeph_Get_DateTime();
    date_time_ms = Orbane::Zeph_Get_DateTime2();
    after = second_of_runtime();
  } while (before.empty() || before != after);
  EXPECT_EQ(date, before.substr(0, 10));
  EXPECT_EQ(time, before.substr(11));
  EXPECT_EQ(std::string(time_ms, 9), before.substr(11) + ".");
  EXPECT_EQ(date_time, before);
  EXPECT_EQ(std::string(date_time_ms, 20), before + ".");
  EXPECT_EQ(std::string(time_ms).size(), 12U);
  EXPECT_EQ(std::string(date_time_ms).size(), 23U);

  const std::set<const char*> all = {date, time, time_ms, date_time, date_time_ms};
  EXPECT_EQ(all.size(), 5U);
  EXPECT_EQ(date, Orbane::Zeph_Get_Date());
  EXPECT_EQ(time, Orbane::Zeph_Get_Time());
  EXPECT_EQ(time_ms, Orbane::Zeph_Get_Time2());
  EXPECT_EQ(date_time, Orbane::Zeph_Get_DateTime());
  EXPECT_EQ(date_time_ms, Orbane::Zeph_Get_DateTime2());
}
