// How often a byte stands in a range, alone, in runs or in front of another.
#ifndef ZEPH_SCAN_COUNT_BYTE_H
#define ZEPH_SCAN_COUNT_BYTE_H

#include <cstddef>

namespace zeph {

std::size_t count_byte(const char* text, std::size_t size, char byte);

// How many runs of it end among the `size` bytes: places that have it while the next one does not.
// text[size] is read too.
std::size_t count_runs(const char* text, std::size_t size, char byte);

// How many of the `size` bytes are `first` and have `second` behind them. text[size] is read too.
std::size_t count_pairs(const char* text, std::size_t size, char first, char second);

}  // namespace zeph

#endif  // ZEPH_SCAN_COUNT_BYTE_H
