// Where a byte stands in a byte text whose length nobody knows yet.
//
// No function reads behind the byte that it returns, so that the text may end at the end of the
// readable memory, with or without a terminator.
#ifndef ZEPH_SCAN_FIND_BYTE_H
#define ZEPH_SCAN_FIND_BYTE_H

#include <cstddef>

namespace zeph {

// The first `byte`, or the terminator.
const char* find_byte_or_end(const char* text, char byte);

// The same within the first `most` bytes; text + most if neither stands there.
const char* find_byte_or_end(const char* text, char byte, std::size_t most);

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_BYTE_H
