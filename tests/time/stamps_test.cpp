#include "time/stamps.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cstdio>
#include <ctime>
#include <string>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace {

void expect_stamp(const zeph::StampForm& form, const zeph::LocalTime& time, const std::string& text,
                  std::size_t size) {
  const zeph_test::GuardedBuffer out(size);
  zeph::put_stamp(form, time, out.data(), size);
  EXPECT_EQ(out.data(), text.substr(0, size - 1));
}

// The present time with its second, or the empty text near the second's ends: a system's clocks
// differ by some milliseconds.
std::string time_of_runtime() {
  const auto now = std::chrono::system_clock::now();
  const auto ticks = now.time_since_epoch() / std::chrono::milliseconds(1) % 1000;
  if (ticks < 50 || ticks > 950) return "";
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  char text[32];
  std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S.", std::localtime(&seconds));
  return text;
}

}  // namespace

TEST(Stamps, AreWhatTheFormatsGiveForAnyNumber) {
  const auto expect_all = [](int year, int n, std::size_t size) {
    char wide[128], narrow[128], clock[128];
    std::snprintf(wide, sizeof wide, "%04d/%02d/%02d", year, n, n);
    std::snprintf(narrow, sizeof narrow, "%02d/%02d/%02d ", year, n, n);
    std::snprintf(clock, sizeof clock, "%02d:%02d:%02d.%03d", n, n, n, n);
    const std::string time(clock, std::string(clock).find('.'));
    const zeph::LocalTime t = {year, n, n, n, n, n, n};
    expect_stamp(zeph::date_form, t, wide, size);
    expect_stamp(zeph::time_form, t, time, size);
    expect_stamp(zeph::time_ms_form, t, clock, size);
    expect_stamp(zeph::date_time_form, t, wide + (" " + time), size);
    expect_stamp(zeph::date_time_ms_form, t, narrow + std::string(clock), size);
  };
  for (int i = 0; i < 1000; ++i) expect_all(i * 31, i, 100);
  for (const int n : {INT_MIN, -1000, -999, -25, -7, -1, 9999, 10000, INT_MAX}) {
    for (std::size_t size = 1; size < 100; ++size) expect_all(n, n, size);
  }
  expect_stamp(zeph::date_time_ms_form, {2025, 7, 29, 8, 5, 9, 42}, "2025/07/29 08:05:09.042", 32);
}

TEST(Stamps, TellTheTimeInBuffersOfTheirOwn) {
  const struct {
    const char* (*stamp)();
    std::size_t from, known, length;  // of "YYYY/MM/DD HH:MM:SS.mmm"
  } rows[] = {{Orbane::Zeph_Get_Date, 0, 10, 10},
              {Orbane::Zeph_Get_Time, 11, 8, 8},
              {Orbane::Zeph_Get_Time2, 11, 9, 12},
              {Orbane::Zeph_Get_DateTime, 0, 19, 19},
              {Orbane::Zeph_Get_DateTime2, 0, 20, 23}};
  const char* texts[5];
  std::string before, after;
  do {  // until all of it falls into one second
    before = time_of_runtime();
    for (std::size_t i = 0; i < 5; ++i) texts[i] = rows[i].stamp();
    after = time_of_runtime();
  } while (before.empty() || before != after);
  for (std::size_t i = 0; i < 5; ++i) {
    const std::string text = texts[i];
    EXPECT_EQ(text.substr(0, rows[i].known), before.substr(rows[i].from, rows[i].known));
    EXPECT_EQ(text.size(), rows[i].length);
    EXPECT_EQ(texts[i], rows[i].stamp());
  }
}
