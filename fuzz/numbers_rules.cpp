// Integers and real numbers from texts, and real numbers as texts.
#include <cmath>
#include <iterator>

#include "number/integer_text_table.h"
#include "number/number_harness.h"
#include "number/real_format_table.h"
#include "rules.h"

using namespace Orbane;

namespace zeph_test {
namespace {

template <typename Table>
auto any_of(Draw& draw, const Table& table) {
  return table[draw.below(std::size(table))];
}

template <typename Number>
bool passes(Number minimum, Number value, Number maximum) {
  return minimum == maximum || (minimum <= value && value <= maximum);
}

std::string integer_text(Draw& draw) {
  const std::string digits = draw.yes() ? "0123456789" : "-0+xX19aFg";
  const char* const starts[] = {"", "", "-", "0x", "-0X"};
  return draw.yes() ? any_of(draw, integer_texts) : any_of(draw, starts) + draw.text(12, digits);
}

void strict_integers(Draw& draw) {
  const std::string bytes = integer_text(draw);
  SCOPED_TRACE(bytes);
  const Reading number = read_integer(bytes, true), small = read_integer(bytes, false);
  const auto expected = static_cast<int>(number.word);
  const auto low_byte = static_cast<signed char>(small.word);
  const int low = draw.yes() ? draw.any_int() : expected, high = draw.yes() ? draw.any_int() : low;
  each_form(bytes, [&](const auto& text, auto... slice) {
    int value = -77;
    EXPECT_EQ(Zeph_To_Int(text, &value, slice...), number.accepted);
    EXPECT_EQ(value, expected);
    value = -77;
    EXPECT_EQ(Zeph_To_Int(text, low, high, &value, slice...),
              number.accepted && passes(low, expected, high));
    EXPECT_EQ(value, expected);
  });
  const auto least = static_cast<signed char>(low), most = static_cast<signed char>(high);
  char byte = -77;
  EXPECT_EQ(Zeph_Char_Num_Check(GuardedText(bytes).data(), static_cast<char>(least),
                                static_cast<char>(most), &byte),
            small.accepted && passes(least, low_byte, most));
  EXPECT_EQ(static_cast<signed char>(byte), low_byte);
  const int code = number.accepted ? (bytes[0] == '-' ? 2 : 1) : 0;
  EXPECT_EQ(Zeph_Int_Check(GuardedText(bytes).data()), code);
  EXPECT_EQ(Zeph_Int_Check(bytes + '\0' + "x"), code);
}

// atoi on a slice, in a buffer of the caller's or without one.
void lenient_integers(Draw& draw) {
  std::string bytes = draw.yes() ? any_of(draw, lenient_texts) : draw.text(12, " \t-+09x:/");
  SCOPED_TRACE(bytes);
  const auto size = static_cast<int>(bytes.size());
  const GuardedText slice(bytes, End::bare);
  const GuardedBuffer work(bytes.size() + 1);
  const int expected = std::atoi(bytes.c_str());
  errno = 33;
  EXPECT_EQ(Zeph_Ext_Int_From_Str(slice.data(), 0, size), expected);
  EXPECT_EQ(Zeph_Ext_Int_From_Str(slice.data(), 0, size, work.data()), expected);
  EXPECT_EQ(errno, 33);
  EXPECT_EQ(work.data(), bytes);
}

void hexadecimal_filter(Draw& draw) {
  const std::string bytes = draw.yes() ? any_of(draw, hex_texts) : draw.text(40, "0xAfg9");
  SCOPED_TRACE(bytes);
  std::string digits;
  for (const char byte : bytes) digits.append(hex_digits.find(byte) != std::string::npos, byte);
  const auto expected = static_cast<int>(wrapped(digits, hex_digits));
  EXPECT_EQ(Zeph_HexStr_to_DecInt(GuardedText(bytes).data()), expected);
  const GuardedText slice("12" + bytes, End::bare);
  EXPECT_EQ(Zeph_HexStr_to_DecInt(slice.data(), 2, static_cast<int>(bytes.size())), expected);
}

// The test of a real-number text counts bytes and looks at no order.
int real_code(const std::string& text) {
  const auto count = [&](const std::string& bytes) {
    return std::count_if(text.begin(), text.end(),
                         [&](char byte) { return bytes.find(byte) != std::string::npos; });
  };
  const bool passes = text.find_first_not_of("0123456789.eE+-") == std::string::npos &&
                      count("0123456789") > 0 && count(".") <= 1 && count("eE") <= 1 &&
                      count("-") <= 2 && count("+") <= 2;
  return passes ? (count("-") == 1 ? 2 : 1) : 0;
}

// A number in the middle between two doubles, or a hair above it: an odd number of 54 bits, divided
// by a power of two.
std::string middle_of_doubles(Draw& draw) {
  const int places = draw.between(0, 29);
  const std::uint64_t odd = (draw.word() >> 10) | (std::uint64_t{1} << 53) | 1;
  const std::uint64_t whole = odd >> places;
  const double fraction = std::ldexp(static_cast<double>(odd - (whole << places)), -places);
  const std::string text = std::to_string(whole) + printed("%#.*f", places, fraction).substr(1);
  return draw.yes() ? text : text + std::string(draw.below(20), '0') + "1";
}

// Often zeros, at times nothing else, with a point somewhere or nowhere.
std::string any_digits(Draw& draw) {
  const std::string digits = draw.below(8) == 0 ? "0" : "0123456789000";
  std::string text = "0" + draw.text(draw.below(50) == 0 ? 400 : 24, digits);
  const std::size_t point = draw.below(2 * text.size());
  if (point < text.size()) text.insert(point, ".");
  return draw.yes() ? text : "-" + text + "e" + std::to_string(draw.between(-400, 400));
}

std::string real_text(Draw& draw) {
  const std::size_t kind = draw.below(4);
  if (kind < 2) return draw.text(8, kind == 0 ? "05.e-+" : " 0x1pE.-n:/");
  return kind == 2 ? middle_of_doubles(draw) : any_digits(draw);
}

void reals(Draw& draw) {
  if (!runtime_is_exact()) return;  // no judge; a test of its own skips and tells
  const std::string text = real_text(draw);
  double scanned = 0.0;
  std::sscanf(text.c_str(), "%lf", &scanned);
  const int code = real_code(text);
  char* end;  // strtod: the atof of some runtimes knows no hexadecimal numbers
  const double lenient = std::strtod(text.c_str(), &end);
  expect_read(text, code, code != 0 ? scanned : before, end == text.c_str() ? 0.0 : lenient);
}

// What the runtime's format makes of each code.
void real_formats(Draw& draw) {
  double value = draw.real();
  if (draw.yes()) value = any_of(draw, special_values);
  if (draw.yes()) value = std::ldexp(draw.between(-30000, 30000), -draw.between(0, 40));  // ties
  if (draw.yes()) value = draw.any_int() / 1000.0;
  const int code = draw.between(-12, 12);
  const bool exponent = code < 0 && code >= -10;
  const int decimals = exponent ? -code : code >= 0 && code <= 10 ? code : 6;
  const std::string text = printed(exponent ? "%.*e" : "%.*f", decimals, value);
  expect_written(value, code, text.substr(0, 63));
}

}  // namespace

const Family numbers_family{
    "numbers", {strict_integers, lenient_integers, hexadecimal_filter, reals, real_formats}};

}  // namespace zeph_test
