// Stamps of the local clock. The forms take the time as an argument, so that every time can be
// tried.
#ifndef ZEPH_TIME_STAMPS_H
#define ZEPH_TIME_STAMPS_H

#include <cstddef>

#include "platform/platform.h"

namespace zeph {

// What a stamp shows.
struct StampForm {
  int year_width;  // the least number of characters of the year; 0: no date
  bool time;
  bool milliseconds;
};

constexpr StampForm date_form{4, false, false};
constexpr StampForm time_form{0, true, false};
constexpr StampForm time_ms_form{0, true, true};
constexpr StampForm date_time_form{4, true, false};
constexpr StampForm date_time_ms_form{2, true, true};

// Writes the stamp and a terminator to `out` of `size` bytes. What does not fit is cut; with a year
// of up to four digits every form fits the buffer of its function.
void put_stamp(const StampForm& form, const LocalTime& time, char* out, std::size_t size);

}  // namespace zeph

#endif  // ZEPH_TIME_STAMPS_H
