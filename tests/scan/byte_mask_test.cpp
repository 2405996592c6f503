#include "scan/byte_mask.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// Every size, with the byte in each place alone and with all others being it; the neighbours in
// value must not count. The bytes end at an inaccessible page.
TEST(ByteMask, FindsEachPlace) {
  for (const char byte : {' ', '\0', '\xC4', '\x7F'}) {
    const char other = static_cast<char>(byte ^ 1), high = static_cast<char>(byte ^ 0x80);
    for (std::size_t size = 0; size <= zeph::mask_bytes; ++size) {
      const std::uint64_t all = size < 64 ? (std::uint64_t{1} << size) - 1 : ~std::uint64_t{0};
      for (std::size_t at = 0; at < size; ++at) {
        SCOPED_TRACE(std::to_string(size) + " bytes, at " + std::to_string(at));
        std::string alone(size, other), others(size, byte);
        alone[at] = byte;
        others[at] = high;
        const std::uint64_t place = std::uint64_t{1} << at;
        const GuardedText first(alone, End::bare), second(others, End::bare);
        EXPECT_EQ(zeph::byte_mask(first.data(), size, byte), place);
        EXPECT_EQ(zeph::byte_mask(second.data(), size, byte), all & ~place);
        EXPECT_EQ(zeph::byte_mask_portable(second.data(), size, byte), all & ~place);
        EXPECT_EQ(zeph::lowest_place(place), at);
      }
      EXPECT_EQ(zeph::byte_mask(std::string(size, other).data(), size, byte), 0u);
    }
  }
}
