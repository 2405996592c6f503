#include "number/real_text.h"

#include <cstdlib>

#include "frame/decimal_point.h"
#include "frame/formatted_text.h"
#include "number/bounds.h"
#include "number/decimal.h"
#include "number/slices.h"
#include "platform/platform.h"
#include "zeph.h"

namespace zeph {

int judge_real(const char* text) {
  int points = 0, letters = 0, minuses = 0, pluses = 0;
  bool has_digit = false;
  for (; *text != '\0'; ++text) {
    switch (*text) {
      case '.':
        if (++points > 1) return 0;
        break;
      case 'e':
      case 'E':
        if (++letters > 1) return 0;
        break;
      case '-':
        if (++minuses > 2) return 0;
        break;
      case '+':
        if (++pluses > 2) return 0;
        break;
      default:
        if (*text < '0' || *text > '9') return 0;
        has_digit = true;
    }
  }
  if (!has_digit) return 0;
  return minuses == 1 ? 2 : 1;
}

namespace {

// What the runtime's scan reads in a locale with another decimal point. It stays out of the way of
// the others, who need no room on the stack.
[[gnu::cold, gnu::noinline]] double scan_real(const char* text) {
  double scanned = 0.0;
  scan_text(text, "%lf", &scanned);
  return scanned;
}

}  // namespace

bool read_real(const char* text, double& value) {
  const Decimal number = read_decimal(text);
  // A text that is one number from end to end cannot fail the test.
  const bool whole = number.end != text && *number.end == '\0';
  if (!whole && judge_real(text) == 0) return false;
  value = number.has_point && !decimal_point_is_dot() ? scan_real(text) : number.value;
  return true;
}

bool read_real_slice(const char* text, int start, int count, double& value) {
  return read_slice(text, start, count, [&](const char* slice) { return read_real(slice, value); });
}

double leading_real(const char* text) {
  if (decimal_point_is_dot()) {
    const char* const number = skip_white_space(text);
    const Decimal decimal = read_decimal(number);
    const bool may_be_hex = *decimal.end == 'x' || *decimal.end == 'X';
    if (decimal.end != number && !may_be_hex) return decimal.value;
  }
  // Infinity, NaN, hexadecimal, another decimal point, or no number.
  const ErrorStateKeeper keeper;
  char* end;
  const double value = std::strtod(text, &end);
  return end == text ? 0.0 : value;  // some runtimes make -0.0 of a '-' without a number
}

}  // namespace zeph

namespace Orbane {

int Zeph_Double_Check(const char* text) {
  return zeph::judge_real(text);
}

int Zeph_Double_Check(const std::string& text) {
  return zeph::judge_real(text.c_str());
}

bool Zeph_To_Double(const char* text, double* value) {
  return zeph::read_real(text, *value);
}

bool Zeph_To_Double(const std::string& text, double* value) {
  return zeph::read_real(text.c_str(), *value);
}

bool Zeph_To_Double(const char* text, double* value, int start, int count) {
  return zeph::read_real_slice(text, start, count, *value);
}

bool Zeph_To_Double(const std::string& text, double* value, int start, int count) {
  return zeph::read_real_slice(text.c_str(), start, count, *value);
}

bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value) {
  return zeph::read_real(text, *value) && zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Double(const std::string& text, double minimum, double maximum, double* value) {
  return zeph::read_real(text.c_str(), *value) && zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value, int start,
                    int count) {
  return zeph::read_real_slice(text, start, count, *value) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Double(const std::string& text, double minimum, double maximum, double* value,
                    int start, int count) {
  return zeph::read_real_slice(text.c_str(), start, count, *value) &&
         zeph::within_bounds(minimum, *value, maximum);
}

double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count) {
  return zeph::convert_short_slice(text, start, count, "[ZEPH_API] Ext_Dbl_From_Str Size Error",
                                   zeph::leading_real);
}

double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count, char* buffer) {
  return zeph::convert_slice(text, start, count, buffer, zeph::leading_real);
}

}  // namespace Orbane
