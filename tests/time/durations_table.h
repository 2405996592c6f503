// Durations as texts.
#ifndef ZEPH_TESTS_TIME_DURATIONS_TABLE_H
#define ZEPH_TESTS_TIME_DURATIONS_TABLE_H

#include <cmath>
#include <limits>

namespace zeph_test {

constexpr double infinity = std::numeric_limits<double>::infinity();

const struct {
  const char* why;
  double seconds;
  const char* text;
} durations[] = {
    {"nothing", 0.0, "00:00:00.000"},
    {"seconds do not round up", 59.9999, "00:00:59.999"},
    {"every field", 3661.5, "01:01:01.500"},
    {"just below a day", 86399.999, "23:59:59.999"},
    {"a day", 86400.0, "1 00:00:00.000"},
    {"days in front", 90061.25, "1 01:01:01.250"},
    {"ten days", 864000.0, "10 00:00:00.000"},
    {"product just below the millisecond", 1.001, "00:00:01.000"},
    {"another one", 1.005, "00:00:01.004"},
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
    {"clamped from far", 1e300, "24855 03:14:07.999"},
    {"clamped from infinity", infinity, "24855 03:14:07.999"},
    {"lowest", std::nextafter(-2147483649.0, 0.0), "-596523:-14:-8.-999"},
    {"clamped below", -2147483649.0, "-596523:-14:-8.-999"},
    {"clamped from below infinity", -infinity, "-596523:-14:-8.-999"},
    {"not a number", std::nan(""), "00:00:00.000"},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_TIME_DURATIONS_TABLE_H
