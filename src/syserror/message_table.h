// The system messages by code, in code page 936. The table is generated.
#ifndef ZEPH_SYSERROR_MESSAGE_TABLE_H
#define ZEPH_SYSERROR_MESSAGE_TABLE_H

#include <cstdint>

namespace zeph {

// Codes above it have no row.
constexpr std::uint32_t highest_message_code = 1398;

// The texts of all rows in the order of their codes, with nothing between them.
extern const char message_texts[];

// The row of a code starts at this index of message_texts and ends where the row of the next code
// starts. A code without a row has an empty one.
extern const std::uint16_t message_starts[highest_message_code + 2];

}  // namespace zeph

#endif  // ZEPH_SYSERROR_MESSAGE_TABLE_H
