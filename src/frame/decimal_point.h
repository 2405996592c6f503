// How the process's locale writes numbers.
#ifndef ZEPH_FRAME_DECIMAL_POINT_H
#define ZEPH_FRAME_DECIMAL_POINT_H

#include <clocale>

#if __has_include(<langinfo.h>)
#include <langinfo.h>
#endif

namespace zeph {

// True if the locale in force writes numbers with ".", as the conversions of the C++ standard
// library do. It costs little enough to be asked at every call.
inline bool decimal_point_is_dot() {
#ifdef RADIXCHAR
  const char* const point = nl_langinfo(RADIXCHAR);
#else
  const char* const point = std::localeconv()->decimal_point;
#endif
  return point[0] == '.' && point[1] == '\0';
}

}  // namespace zeph

#endif  // ZEPH_FRAME_DECIMAL_POINT_H
