// The first and the last byte of a range that is another one: where a run of one byte ends. For the
// place of a byte in a range there is the runtime's memchr.
#ifndef ZEPH_SCAN_OTHER_BYTE_H
#define ZEPH_SCAN_OTHER_BYTE_H

#include <cstddef>

namespace zeph {

// How many bytes in front of the first one that is not `byte`; `size` if there is none.
std::size_t run_at_front(const char* text, std::size_t size, char byte);
std::size_t run_at_front_portable(const char* text, std::size_t size, char byte);

// How many bytes behind the last one that is not `byte`; `size` if there is none.
std::size_t run_at_back(const char* text, std::size_t size, char byte);
std::size_t run_at_back_portable(const char* text, std::size_t size, char byte);

}  // namespace zeph

#endif  // ZEPH_SCAN_OTHER_BYTE_H
