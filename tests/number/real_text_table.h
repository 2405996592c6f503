// Texts and the numbers that they are, and bounds around the number 2.5.
#ifndef ZEPH_TESTS_NUMBER_REAL_TEXT_TABLE_H
#define ZEPH_TESTS_NUMBER_REAL_TEXT_TABLE_H

#include <limits>

namespace zeph_test {

constexpr double before = -77.0;  // what an output holds before a call
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

const struct {
  const char* why;
  const char* text;
  int code;
  double value;
  double lenient;
} judged_texts[] = {
    {"no byte", "", 0, before, 0.0},
    {"no digit", "-", 0, before, 0.0},
    {"a point alone", ".", 0, before, 0.0},
    {"one digit", "5", 1, 5.0, 5.0},
    {"one minus", "-5", 2, -5.0, -5.0},
    {"no digit in front of the point", "+.5", 1, 0.5, 0.5},
    {"no digit behind the point", "5.", 1, 5.0, 5.0},
    {"an exponent", "1e3", 1, 1000.0, 1000.0},
    {"a minus in the exponent", "1e-3", 2, 0.001, 0.001},
    {"two minuses", "-1e-3", 1, -0.001, -0.001},
    {"the scan stops at a sign", "5-3", 2, 5.0, 5.0},
    {"the scan stops behind an exponent", "1.5e3-", 2, 1500.0, 1500.0},
    {"an exponent without digits", "5e", 1, 5.0, 5.0},
    {"an exponent with a sign alone", "1.e+", 1, 1.0, 1.0},
    {"starts with no number", "e5", 1, 0.0, 0.0},
    {"starts with a sign and no number", "-e5", 2, 0.0, 0.0},
    {"two signs", "+-5", 2, 0.0, 0.0},
    {"two minuses in front", "--5", 1, 0.0, 0.0},
    {"two points", "1.2.3", 0, before, 1.2},
    {"two exponent letters", "1e2E3", 0, before, 100.0},
    {"three minuses", "-1-2-3", 0, before, -1.0},
    {"three pluses", "+1+2+3", 0, before, 1.0},
    {"a blank in front", " 5", 0, before, 5.0},
    {"white space in front", "\n\t\v\f\r5", 0, before, 5.0},
    {"a blank behind", "5 ", 0, before, 5.0},
    {"a comma", "1,5", 0, before, 1.0},
    {"a hexadecimal form", "0x10", 0, before, 16.0},
    {"its letter in capitals", "0X10", 0, before, 16.0},
    {"infinity as a word", "-inf", 0, before, -infinity},
    {"negative zero", "-0e99999999999999999999", 2, -0.0, -0.0},
    {"too large", "-1e400", 2, -infinity, -infinity},
    {"too small", "1e-400", 2, 0.0, 0.0},
    {"an exponent beyond every word", "1e99999999999999999999", 1, infinity, infinity},
    {"the smallest", "4.9e-324", 2, 4.9e-324, 4.9e-324},
    {"half of it", "2.4703282292062327e-324", 2, 0.0, 0.0},
    {"above half of it", "2.4703282292062328e-324", 2, 4.9e-324, 4.9e-324},
    {"rounds up to the largest", "1.7976931348623158e308", 1, 1.7976931348623157e308,
     1.7976931348623157e308},
    {"rounds beyond the largest", "1.7976931348623159e308", 1, infinity, infinity},
    {"a tie", "9007199254740993", 1, 9007199254740992.0, 9007199254740992.0},
    {"a tie to the upper neighbour", "9007199254740995", 1, 9007199254740996.0, 9007199254740996.0},
    {"many leading zeros", "0.00000000000000000000012345678901234567", 1,
     0.00000000000000000000012345678901234567, 0.00000000000000000000012345678901234567},
};

const struct {
  const char* why;
  double minimum, maximum;
  bool passes;
} real_bounds[] = {
    {"the lower end", 2.5, 3.5, true},
    {"the upper end", 1.5, 2.5, true},
    {"equal bounds", 9.0, 9.0, true},
    {"zeros of both signs", -0.0, 0.0, true},
    {"below", 2.6, 3.0, false},
    {"above", 1.0, 2.4, false},
    {"crossed", 3.0, 1.0, false},
    {"no lower bound", not_a_number, 3.0, true},
    {"no upper bound", 3.0, not_a_number, false},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_REAL_TEXT_TABLE_H
