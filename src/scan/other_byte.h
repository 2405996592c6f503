// The first and the last byte of a range that is another one: where a run of one byte ends. For the
// place of a byte in a range there is the runtime's memchr.
#ifndef ZEPH_SCAN_OTHER_BYTE_H
#define ZEPH_SCAN_OTHER_BYTE_H

#include <cstddef>

namespace zeph {

std::size_t run_at_front_portable(const char* text, std::size_t size, char byte);
std::size_t run_at_back_portable(const char* text, std::size_t size, char byte);

// The same for runs of which at least `near_run` bytes are known.
std::size_t long_run_at_front(const char* text, std::size_t size, char byte);
std::size_t long_run_at_back(const char* text, std::size_t size, char byte);

// Most runs are short: the first bytes decide them, without a call. Eight blanks are a usual
// indent.
constexpr std::size_t near_run = 9;

// How many bytes in front of the first one that is not `byte`; `size` if there is none.
inline std::size_t run_at_front(const char* text, std::size_t size, char byte) {
  for (std::size_t run = 0; run < near_run; ++run) {
    if (run == size || text[run] != byte) return run;
  }
  return long_run_at_front(text, size, byte);
}

// How many bytes behind the last one that is not `byte`; `size` if there is none.
inline std::size_t run_at_back(const char* text, std::size_t size, char byte) {
  for (std::size_t run = 0; run < near_run; ++run) {
    if (run == size || text[size - 1 - run] != byte) return run;
  }
  return long_run_at_back(text, size, byte);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_OTHER_BYTE_H
