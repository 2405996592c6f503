// Copying a text whose end is not known: the way to its end and the copy in one.
#ifndef ZEPH_SCAN_COPY_TEXT_H
#define ZEPH_SCAN_COPY_TEXT_H

#include <cstddef>

namespace zeph {

// Copies up to the first zero byte or `stop`, which stays out, or `most` bytes, all of which may be
// read. Returns how many. The places do not overlap.
std::size_t copy_text(char* to, const char* from, std::size_t most, char stop = '\0');

// The twins; the baseline is what the compiler's target has.
std::size_t copy_text_baseline(char* to, const char* from, std::size_t most, char stop);
std::size_t copy_text_avx512(char* to, const char* from, std::size_t most, char stop);

// Copies in steps of 128 bytes, as many of these as hold no end. Returns how many bytes.
std::size_t copy_text_128_avx2(char* to, const char* from, std::size_t most, char stop);

}  // namespace zeph

#endif  // ZEPH_SCAN_COPY_TEXT_H
