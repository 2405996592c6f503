#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

#include "support/table.h"
#include "time/durations_table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

void expect_both(double seconds, const std::string& with_milliseconds) {
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time2(seconds), with_milliseconds);
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time(seconds),
            with_milliseconds.substr(0, with_milliseconds.find('.')));
}

// A duration within the range.
void expect_as_formatted(double seconds) {
  const volatile double product = seconds * 1000.0;
  const int whole = static_cast<int>(seconds), hours = whole / 3600;
  const int milliseconds = static_cast<int>(std::fmod(std::trunc(product), 1000.0));
  char text[64];
  std::snprintf(text, sizeof text, "%d %02d:%02d:%02d.%03d", hours / 24,
                hours >= 24 ? hours % 24 : hours, whole / 60 % 60, whole % 60, milliseconds);
  expect_both(seconds, hours >= 24 ? text : std::strchr(text, ' ') + 1);
}

}  // namespace

TEST(Durations, AreCutAndNeverRounded) {
  each_row(durations, [](const auto& row) { expect_both(row.seconds, row.text); });
}

TEST(Durations, AreWhatTheFormatsGive) {
  std::mt19937 random(20250729);
  std::uniform_real_distribution<double> any(-2147483648.0, 2147483647.0);
  for (int i = -100000; i <= 100000; ++i) {
    for (const double seconds : {i * 1.0, i / 1000.0, any(random)}) expect_as_formatted(seconds);
  }
}

TEST(Durations, HaveABufferEach) {
  const char *const whole = Orbane::Zeph_Seconds_To_Time(1.0), *const fine =
                                                                   Orbane::Zeph_Seconds_To_Time2(
                                                                       2.5);
  EXPECT_STREQ(whole, "00:00:01");
  EXPECT_EQ(whole, Orbane::Zeph_Seconds_To_Time(3.0));
  EXPECT_EQ(fine, Orbane::Zeph_Seconds_To_Time2(3.0));
}
