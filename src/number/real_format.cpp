#include "number/real_format.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/decimal_point.h"
#include "frame/formatted_text.h"
#include "number/powers_of_ten.h"
#include "number/wide_product.h"
#include "zeph.h"

namespace zeph {

void trim_exponent(char* text) {
  const std::size_t length = std::strlen(text);
  char* const digit = text + length - 3;
  std::size_t zeros = 0;
  while (zeros < 2 && digit[zeros] == '0') ++zeros;
  std::memmove(digit, digit + zeros, 3 - zeros + 1);
}

namespace {

constexpr std::size_t room = 64;  // of every output, terminator included

struct Format {
  std::chars_format notation;
  int decimals;
};

constexpr Format format_of(int code) {
  if (code >= 0 && code <= 10) return {std::chars_format::fixed, code};
  if (code < 0 && code >= -10) return {std::chars_format::scientific, -code};
  return {std::chars_format::fixed, 6};
}

// "00" to "99".
constexpr auto digit_pairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// Writes the last `count` digits of the number.
void put_digits(char* out, std::uint64_t number, std::size_t count) {
  for (; count >= 2; number /= 100) {
    count -= 2;
    std::memcpy(out + count, &digit_pairs[static_cast<std::size_t>(number % 100) * 2], 2);
  }
  if (count == 1) *out = static_cast<char>('0' + number % 10);
}

constexpr std::uint64_t powers[] = {1,       10,       100,       1000,       10000,      100000,
                                    1000000, 10000000, 100000000, 1000000000, 10000000000};

// A finite magnitude below 2^63 as whole + fraction / 2^64, exactly. Declines if that takes more
// bits.
struct FixedPoint {
  std::uint64_t whole, fraction;
};

bool split_at_point(double magnitude, FixedPoint& parts) {
  constexpr int mantissa_bits = DBL_MANT_DIG - 1;
  std::uint64_t image;
  std::memcpy(&image, &magnitude, sizeof image);
  if (image == 0) {
    parts = {0, 0};
    return true;
  }
  const std::uint64_t first_bit = std::uint64_t{1} << mantissa_bits;
  const std::uint64_t mantissa = (image & (first_bit - 1)) | first_bit;
  const int places = DBL_MAX_EXP - 1 + mantissa_bits - static_cast<int>(image >> mantissa_bits);
  if (places > 64 || places < -10) return false;  // the magnitude is mantissa / 2^places
  if (places <= 0) {
    parts = {mantissa << -places, 0};
  } else if (places == 64) {
    parts = {0, mantissa};
  } else {
    parts = {mantissa >> places, mantissa << (64 - places)};
  }
  return true;
}

// Writes the fixed notation of most numbers by integer arithmetic, which is exact: the product of
// the fraction and a power of ten is the decimals in its high word, and the rest in its low one.
// Returns the place of the terminator, NULL for the other numbers.
char* put_fixed(char* out, double value, int decimals) {
  FixedPoint parts;
  const bool negative = std::signbit(value);
  if (!split_at_point(negative ? -value : value, parts)) return nullptr;
  const auto count = static_cast<std::size_t>(decimals);
  auto [digits, rest] = wide_product(parts.fraction, powers[count]);
  constexpr std::uint64_t half = std::uint64_t{1} << 63;
  const bool odd = ((count == 0 ? parts.whole : digits) & 1) != 0;
  if (rest > half || (rest == half && odd)) ++digits;
  if (digits == powers[count]) {
    ++parts.whole;
    digits = 0;
  }
  if (negative) *out++ = '-';
  out = std::to_chars(out, out + 20, parts.whole).ptr;
  if (count > 0) {
    *out++ = '.';
    put_digits(out, digits, count);
    out += count;
  }
  *out = '\0';
  return out;
}

// The integer below magnitude * 10^power, and how the rest lies to a half. The power is cut off
// behind 128 bits, so that the exact product lies at most two units of its low word higher: where
// that may matter, declines.
struct ScaledDigits {
  std::uint64_t digits;
  bool round_up;
};

bool scale_digits(std::uint64_t mantissa, int place, int power, ScaledDigits& scaled) {
  const Wide bits = power_bits(power);
  auto [high, low] = wide_product(mantissa, bits.high);
  const std::uint64_t carry = wide_product(mantissa, bits.low).high;
  low += carry;
  high += low < carry;
  const int shift = 62 - place - power_place(power);  // of the high word; 24 at least
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const std::uint64_t rest = high & (2 * half - 1);
  if ((rest == half && low == 0) || (rest == half - 1 && low == ~std::uint64_t{0})) return false;
  scaled = {high >> shift, rest >= half};
  return true;
}

// Writes the scientific notation of most numbers by one product with a power of ten, as the reader
// of numbers does in the other direction. Returns as put_fixed() does, and stays out of its way.
[[gnu::noinline]] char* put_scientific(char* out, double value, int decimals) {
  std::uint64_t image;
  std::memcpy(&image, &value, sizeof image);
  constexpr int mantissa_bits = DBL_MANT_DIG - 1;
  const auto biased = static_cast<int>(image >> mantissa_bits & (2 * DBL_MAX_EXP - 1));
  if (biased == 0) return nullptr;  // zero, or fewer bits than a double has
  const int place = biased - (DBL_MAX_EXP - 1);
  const std::uint64_t mantissa = image << (63 - mantissa_bits) | std::uint64_t{1} << 63;
  // floor(place * log10(2)): the exponent, or one less.
  int exponent = (place * 78913) >> 18;
  if (decimals - exponent > highest_power) return nullptr;
  const auto count = static_cast<std::size_t>(decimals);
  const std::uint64_t one = powers[count];
  ScaledDigits scaled;
  if (!scale_digits(mantissa, place, decimals - exponent, scaled)) return nullptr;
  if (scaled.digits >= 10 * one) {
    ++exponent;
    if (!scale_digits(mantissa, place, decimals - exponent, scaled)) return nullptr;
  }
  std::uint64_t digits = scaled.digits + scaled.round_up;
  if (digits == 10 * one) {
    digits = one;
    ++exponent;
  }
  if (image >> 63 != 0) *out++ = '-';
  *out++ = static_cast<char>('0' + digits / one);
  *out++ = '.';
  put_digits(out, digits % one, count);
  out += count;
  *out++ = 'e';
  *out++ = exponent < 0 ? '-' : '+';
  const auto magnitude = static_cast<std::uint64_t>(exponent < 0 ? -exponent : exponent);
  const std::size_t width = magnitude < 100 ? 2 : 3;
  put_digits(out, magnitude, width);
  out += width;
  *out = '\0';
  return out;
}

// Writes a number with '.' as its decimal point; returns as put_fixed() does. The standard
// library's own conversion gives the bytes of the bounded format for every finite number that fits.
char* put_with_dot(char* out, std::size_t size, double value, Format format) {
  if (!std::isfinite(value)) return nullptr;
  if (format.decimals > 0 && !decimal_point_is_dot()) return nullptr;
  char* const ours = format.notation == std::chars_format::fixed
                         ? put_fixed(out, value, format.decimals)
                         : put_scientific(out, value, format.decimals);
  if (ours) return ours;
  const auto [end, error] =
      std::to_chars(out, out + size - 1, value, format.notation, format.decimals);
  if (error != std::errc()) return nullptr;
  *end = '\0';
  return end;
}

}  // namespace

char* put_fixed_real(char* out, double value, int decimals) {
  return put_with_dot(out, longest_real, value, {std::chars_format::fixed, decimals});
}

std::size_t put_real(char (&out)[longest_real], double value) {
  const char* const end = put_fixed_real(out, value, 6);
  if (end) return static_cast<std::size_t>(end - out);
  format_bounded(out, sizeof out, "%f", value);
  return std::strlen(out);
}

}  // namespace zeph

namespace Orbane {

// Its short loops stand in as few cache lines as they can, whatever lies in front of it.
[[gnu::aligned(64)]] void Zeph_Conv_Dbl_To_Str(double value, int precision, char* const out) {
  const zeph::Format format = zeph::format_of(precision);
  if (zeph::put_with_dot(out, zeph::room, value, format)) return;
  if (format.notation == std::chars_format::fixed) {
    zeph::format_bounded(out, zeph::room, "%.*f", format.decimals, value);
    return;
  }
  zeph::format_bounded(out, zeph::room, "%.*e", format.decimals, value);
  zeph::trim_exponent(out);
}

}  // namespace Orbane
