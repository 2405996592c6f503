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
  double value;
  int code;
  std::string text;
} precision_rows[] = {
    {"two decimals", 1234.5678, 2, "1234.57"},
    {"no decimals, no point", 1234.5678, 0, "1235"},
    {"ten decimals", 1234.5678, 10, "1234.5678000000"},
    {"exponent", 1234.5678, -2, "1.23e+03"},
    {"ten decimals and exponent", 1234.5678, -10, "1.2345678000e+03"},
    {"beyond the codes", 1234.5678, 11, "1234.567800"},
    {"beyond the codes, negative", 1234.5678, -11, "1234.567800"},
    {"the least code", 1234.5678, std::numeric_limits<int>::min(), "1234.567800"},
    {"zero with exponent", 0.0, -3, "0.000e+00"},
    {"a tie goes to the even digit", 2.5, 0, "2"},
    {"a tie behind the point", 0.125, 2, "0.12"},
    {"no tie: the stored value is below", 1.005, 2, "1.00"},
    {"carries into a new digit", 9.999, 2, "10.00"},
    {"the code picks the notation", 1e-5, 2, "0.00"},
    {"rounds to negative zero", -0.001, 2, "-0.00"},
    {"three digits of exponent", 1e300, -1, "1.0e+300"},
    {"cut at 63", 1e62, 1, "100000000000000003502199685943161173046080317798311825604870144"},
};

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
