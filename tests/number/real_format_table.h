// Numbers as the codes write them.
#ifndef ZEPH_TESTS_NUMBER_REAL_FORMAT_TABLE_H
#define ZEPH_TESTS_NUMBER_REAL_FORMAT_TABLE_H

#include <limits>
#include <string>

namespace zeph_test {

using Double = std::numeric_limits<double>;

const double special_values[] = {0.0,
                                 -0.0,
                                 -1e-30,
                                 0.5,
                                 1.5,
                                 -2.5,
                                 0.125,
                                 0.375,
                                 99.995,
                                 0.99999999999,
                                 9.9999999999999,
                                 4503599627370495.5,
                                 9007199254740992.0,
                                 9223372036854774784.0,
                                 9223372036854775808.0,
                                 18446744073709551616.0,
                                 1e51,
                                 1e52,
                                 9.9e62,
                                 1e63,
                                 1e300,
                                 Double::max(),
                                 Double::min(),
                                 Double::denorm_min(),
                                 Double::infinity(),
                                 -Double::infinity(),
                                 Double::quiet_NaN(),
                                 -Double::quiet_NaN()};

const struct {
  const char* why;
  const char* text;
  const char* trimmed;
} exponent_rows[] = {
    {"two zeros", "1.5e+003", "1.5e+3"},    {"one zero", "1.5e+012", "1.5e+12"},
    {"at most two", "1.5e+000", "1.5e+0"},  {"three digits", "1.5e+100", "1.5e+100"},
    {"two digits", "1.50e-03", "1.50e-03"}, {"a word", "inf", "inf"},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_REAL_FORMAT_TABLE_H
