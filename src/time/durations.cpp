#include <cstdint>

#include "time/clock_text.h"
#include "zeph.h"

namespace zeph {
namespace {

// The last doubles whose whole part is an int of 32 bits. Their products with 1000 stay off the
// next whole second, so that a clamped duration ends in ".999": a longer duration never shows a
// smaller text.
constexpr double longest_duration = 2147483648.0 - 1.0 / (1 << 22);
constexpr double lowest_duration = -2147483649.0 + 1.0 / (1 << 21);

double clamped(double seconds) {
  if (seconds > longest_duration) return longest_duration;
  if (seconds < lowest_duration) return lowest_duration;
  return seconds == seconds ? seconds : 0.0;  // not-a-number equals nothing
}

// "HH:MM:SS", from 24 hours on with the days in front. `seconds` is clamped. All divisions cut
// toward zero, so that every field of a negative duration bears its own sign and the hours stay
// below 24.
char* put_duration(char* to, double seconds) {
  const auto whole = static_cast<std::int32_t>(seconds);
  int hours = whole / 3600;
  if (hours >= 24) {
    to = put_field<1>(to, hours / 24);
    *to++ = ' ';
    hours %= 24;
  }
  return put_clock(to, hours, whole % 3600 / 60, whole % 60);
}

// The milliseconds are those of the product as a double has it, not of the fraction: 1.001 gives 0.
int milliseconds_of(double seconds) {
  // The store makes a double of a product that a wider register may hold more exactly.
  const volatile double product = seconds * 1000.0;
  return static_cast<int>(static_cast<std::int64_t>(product) % 1000);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

// Of the 32 bytes of a result the longest text, "-596523:-14:-8.-999", takes 20.

const char* Zeph_Seconds_To_Time(double seconds) {
  static char result[32];
  *zeph::put_duration(result, zeph::clamped(seconds)) = '\0';
  return result;
}

const char* Zeph_Seconds_To_Time2(double seconds) {
  static char result[32];
  const double duration = zeph::clamped(seconds);
  char* const end = zeph::put_duration(result, duration);
  *zeph::put_milliseconds(end, zeph::milliseconds_of(duration)) = '\0';
  return result;
}

}  // namespace Orbane
