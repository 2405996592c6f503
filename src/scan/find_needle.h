// Where a run of bytes stands in a range of known size.
#ifndef ZEPH_SCAN_FIND_NEEDLE_H
#define ZEPH_SCAN_FIND_NEEDLE_H

#include <string_view>

namespace zeph {

// The index of the first occurrence of `needle` in `haystack`, or std::string_view::npos. The empty
// needle stands at 0. The time is proportional to the two sizes together, whatever the bytes are,
// and nothing is allocated.
std::size_t find_needle(std::string_view haystack, std::string_view needle);

// The same in plain C++, for systems without a search of their own. The needle is not empty.
std::size_t find_needle_portable(std::string_view haystack, std::string_view needle);

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_NEEDLE_H
