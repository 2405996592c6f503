#include "time/stamps.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>
#include <ctime>
#include <random>
#include <set>

#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "time/stamps_table.h"

using namespace zeph_test;

namespace {

// The five stamps in rooms of `size` bytes must be what the formats give there.
void expect_as_formatted(const zeph::LocalTime& t, std::size_t size) {
  const std::string date = printed("%04d/%02d/%02d", t.year, t.month, t.day);
  const std::string short_date = printed("%02d/%02d/%02d ", t.year, t.month, t.day);
  const std::string time = printed("%02d:%02d:%02d", t.hour, t.minute, t.second);
  const std::string ms = printed(".%03d", t.millisecond);
  const auto expect_stamp = [&](const zeph::StampForm& form, const std::string& whole) {
    const auto put = [&](char* out) { zeph::put_stamp(form, t, out, size); };
    EXPECT_EQ(left_in_room(size, put), whole.substr(0, size - 1));
  };
  expect_stamp(zeph::date_form, date);
  expect_stamp(zeph::time_form, time);
  expect_stamp(zeph::time_ms_form, time + ms);
  expect_stamp(zeph::date_time_form, date + ' ' + time);
  expect_stamp(zeph::date_time_ms_form, short_date + time + ms);
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

// A duration within the range.
void expect_as_formatted(double seconds) {
  const volatile double product = seconds * 1000.0;
  const int whole = static_cast<int>(seconds), hours = whole / 3600, days = hours / 24;
  const int milliseconds = static_cast<int>(std::fmod(std::trunc(product), 1000.0));
  const std::string text =
      (hours >= 24 ? printed("%d ", days) : "") +
      printed("%02d:%02d:%02d", hours >= 24 ? hours % 24 : hours, whole / 60 % 60, whole % 60);
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time(seconds), text);
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time2(seconds), text + printed(".%03d", milliseconds));
}

}  // namespace

TEST(Stamps, AreWhatTheFormatsGiveForAnyNumber) {
  for (int i = 0; i < 1000; ++i) {
    expect_as_formatted({i * 31, i % 100, i, i + 1, i + 2, i + 3, i + 4}, 100);
  }
  for (const int n : {INT_MIN, -1000, -999, -25, -7, -1, 9999, 10000, INT_MAX}) {
    for (std::size_t size = 1; size < 100; ++size) expect_as_formatted({n, n, n, n, n, n, n}, size);
  }
}

TEST(Stamps, TellTheTimeInBuffersOfTheirOwn) {
  std::set<const char*> buffers;
  for (const auto& stamp : stamps) {
    std::string second, text;
    do {  // until all of it falls into one second
      second = second_of_runtime();
      text = *buffers.insert(stamp.get()).first;
    } while (second.empty() || second != second_of_runtime());
    EXPECT_EQ(text.size(), stamp.size);
    EXPECT_EQ(text.substr(0, 19 - stamp.start), second.substr(stamp.start, stamp.size));
    buffers.insert(stamp.get());
  }
  EXPECT_EQ(buffers.size(), 5u);
}

TEST(Durations, AreWhatTheFormatsGive) {
  std::mt19937 random(20250729);
  std::uniform_real_distribution<double> any(-2147483648.0, 2147483647.0);
  for (int i = -100000; i <= 100000; ++i) {
    for (const double seconds : {i * 1.0, i / 1000.0, any(random)}) expect_as_formatted(seconds);
  }
}
