#include <gtest/gtest.h>

#include <string>

#include "zeph.h"

TEST(HexDump, Rows) {
  char* block = nullptr;
  EXPECT_EQ(Orbane::Zeph_To_Ascii("\xE4\x05"), "e4 5");
  EXPECT_STREQ(Orbane::Zeph_To_Ascii("\xE4\x05", &block), "E4 05");
  block[6] = 'x';
  Orbane::Zeph_To_Ascii("A", &block);
  EXPECT_EQ(std::string(block, 7), std::string("41\0\0"
                                               "5\0x",
                                               7))
      << "3 * 1 + 1 bytes are written";
  EXPECT_STREQ(Orbane::Zeph_To_Ascii("\0A", 2, &block), "00 41") << "a count is no text";
  Orbane::Zeph_Release_Mem(&block);
}
