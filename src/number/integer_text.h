// Integer text: an optional '-', then decimal digits, or "0x" and hexadecimal digits.
#ifndef ZEPH_NUMBER_INTEGER_TEXT_H
#define ZEPH_NUMBER_INTEGER_TEXT_H

namespace zeph {

// True if `count` bytes from `start` on are integer text; the empty body is one, of value 0. The
// value, modulo 2^32, is stored in either case: at a foreign byte it holds the digits in front of
// it, unsigned. A refused work buffer is reported, gives false, and leaves the value as it was.
bool read_integer_slice(const char* text, int start, int count, int& value);

}  // namespace zeph

#endif  // ZEPH_NUMBER_INTEGER_TEXT_H
