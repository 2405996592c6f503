#include "time/stamps.h"

#include <algorithm>
#include <cstring>

#include "time/clock_text.h"
#include "zeph.h"

namespace zeph {
namespace {

// Seven fields and what stands between them.
constexpr std::size_t longest_stamp = 7 * longest_field + sizeof "// ::." - 1;

char* put_year(char* to, int year, int width) {
  if (year >= 1000 && year <= 9999) return put_field<4>(to, year);
  return put_padded(to, year, width);
}

char* put_date(char* to, const LocalTime& time, int year_width) {
  to = put_year(to, time.year, year_width);
  *to++ = '/';
  to = put_field<2>(to, time.month);
  *to++ = '/';
  return put_field<2>(to, time.day);
}

// A function's result buffer, process-wide by contract.
template <std::size_t size>
const char* stamp_now(const StampForm& form, char (&result)[size]) {
  put_stamp(form, local_time(), result, size);
  return result;
}

}  // namespace

void put_stamp(const StampForm& form, const LocalTime& time, char* out, std::size_t size) {
  char text[longest_stamp];
  char* end = text;
  if (form.year_width > 0) end = put_date(end, time, form.year_width);
  if (form.year_width > 0 && form.time) *end++ = ' ';
  if (form.time) end = put_clock(end, time.hour, time.minute, time.second);
  if (form.milliseconds) end = put_milliseconds(end, time.millisecond);
  const std::size_t length = std::min(static_cast<std::size_t>(end - text), size - 1);
  std::memcpy(out, text, length);
  out[length] = '\0';
}

}  // namespace zeph

namespace Orbane {

const char* Zeph_Get_Date(void) {
  static char result[16];
  return zeph::stamp_now(zeph::date_form, result);
}

const char* Zeph_Get_Time(void) {
  static char result[16];
  return zeph::stamp_now(zeph::time_form, result);
}

const char* Zeph_Get_Time2(void) {
  static char result[16];
  return zeph::stamp_now(zeph::time_ms_form, result);
}

const char* Zeph_Get_DateTime(void) {
  static char result[24];
  return zeph::stamp_now(zeph::date_time_form, result);
}

const char* Zeph_Get_DateTime2(void) {
  static char result[32];
  return zeph::stamp_now(zeph::date_time_ms_form, result);
}

}  // namespace Orbane
