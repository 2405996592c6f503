// The first place of a run of bytes in a text of known size.
//
//     find_needle("chamber", "be")                        // 4
//     find_needle_ignoring_case("Event: ALARM", "alarm")  // 7
//
// All of them give an index, or std::string_view::npos where the needle does not stand. The empty
// needle stands at 0. Zero bytes are bytes like any other, and nothing outside the two views is
// read. The time is proportional to the two sizes together, whatever the bytes are, and nothing is
// allocated. A search that goes on behind each match is linear as a whole: a call reads little
// behind the match that it finds.
//
// For a single byte std::memchr does the same.
#ifndef ZEPH_SCAN_FIND_NEEDLE_H
#define ZEPH_SCAN_FIND_NEEDLE_H

#include <string_view>

namespace zeph {

// Equal byte for byte.
std::size_t find_needle(std::string_view haystack, std::string_view needle);

// The last place instead of the first; the empty needle stands at the end.
std::size_t find_last_needle(std::string_view haystack, std::string_view needle);

// The letters of the ASCII alphabet are equal in both cases.
std::size_t find_needle_ignoring_case(std::string_view haystack, std::string_view needle);

// Two bytes are equal if `table`, one byte for each of the 256, has the same for both: for locales
// that fold other letters.
std::size_t find_needle_by_table(std::string_view haystack, std::string_view needle,
                                 const unsigned char* table);

// find_needle() without its filter and without any service of the runtime.
std::size_t find_needle_portable(std::string_view haystack, std::string_view needle);

// The twins for a haystack of at most 64 bytes and a needle of 1 byte up to that size.
std::size_t find_short_needle_baseline(std::string_view haystack, std::string_view needle);
std::size_t find_short_needle_avx512(std::string_view haystack, std::string_view needle);

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_NEEDLE_H
