#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "support/table.h"
#include "zeph.h"

using zeph_test::each_row;

namespace {

// The text of a duration within the range, by the formats.
std::string formatted(double seconds) {
  const volatile double product = seconds * 1000.0;
  const int whole = static_cast<int>(seconds), hours = whole / 3600;
  const int minutes = whole / 60 - hours * 60, rest = whole - whole / 60 * 60;
  const int milliseconds = static_cast<int>(std::fmod(std::trunc(product), 1000.0));
  char text[64], days[16] = "";
  if (hours >= 24) std::snprintf(days, sizeof days, "%d ", hours / 24);
  std::snprintf(text, sizeof text, "%s%02d:%02d:%02d.%03d", days, hours >= 24 ? hours % 24 : hours,
                minutes, rest, milliseconds);
  return text;
}

void expect_both(double seconds, const std::string& with_milliseconds) {
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time2(seconds), with_milliseconds);
  EXPECT_EQ(Orbane::Zeph_Seconds_To_Time(seconds),
            with_milliseconds.substr(0, with_milliseconds.find('.')));
}

}  // namespace

TEST(Durations, AreCutAndNeverRounded) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    const char* why;
    double seconds;
    const char* text;
  } rows[] = {
      {"nothing", 0.0, "00:00:00.000"},
      {"seconds do not round up", 59.9999, "00:00:59.999"},
      {"just below a day", 86399.999, "23:59:59.999"},
      {"a day", 86400.0, "1 00:00:00.000"},
      {"days in front", 90061.25, "1 01:01:01.250"},
      {"product just below the millisecond", 1.001, "00:00:01.000"},
      {"product that rounds up to the millisecond", 0.29, "00:00:00.290"},
      {"last whole second", 2147483647.0, "24855 03:14:07.000"},
      {"sign of the seconds", -5.0, "00:00:-5.000"},
      {"sign of every field", -3661.5, "-1:-1:-1.-500"},
      {"sign of the milliseconds alone", -0.5, "00:00:00.-500"},
      {"sign within the width", -0.007, "00:00:00.-07"},
      {"no days below zero", -90061.25, "-25:-1:-1.-250"},
      {"lowest whole second", -2147483648.0, "-596523:-14:-8.000"},
      {"longest", std::nextafter(2147483648.0, 0.0), "24855 03:14:07.999"},
      {"clamped", 2147483648.0, "24855 03:14:07.999"},
      {"clamped from infinity", infinity, "24855 03:14:07.999"},
      {"lowest", std::nextafter(-2147483649.0, 0.0), "-596523:-14:-8.-999"},
      {"clamped below", -2147483649.0, "-596523:-14:-8.-999"},
      {"clamped from below infinity", -infinity, "-596523:-14:-8.-999"},
      {"not a number", std::nan(""), "00:00:00.000"},
  };
  each_row(rows, [](const auto& row) { expect_both(row.seconds, row.text); });
}

TEST(Durations, AreWhatTheFormatsGive) {
  for (int i = -100000; i <= 100000; ++i) {
    expect_both(i, formatted(i));
    expect_both(i / 1000.0, formatted(i / 1000.0));
  }
  std::mt19937 random(20250729);
  std::uniform_real_distribution<double> any(-2147483648.0, 2147483647.0);
  for (int i = 0; i < 100000; ++i) {
    const double seconds = any(random);
    expect_both(seconds, formatted(seconds));
  }
}
