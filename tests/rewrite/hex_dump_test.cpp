#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

std::string printed(const char* format, const std::string& bytes) {
  std::string dump;
  for (const char byte : bytes) {
    char number[8];
    std::snprintf(number, sizeof number, format, static_cast<unsigned char>(byte));
    dump += dump.empty() ? number : std::string(" ") + number;
  }
  return dump;
}

std::string filled(const std::string& bytes) {
  GuardedText source(bytes, End::bare);
  char* block = nullptr;
  EXPECT_EQ(Orbane::Zeph_To_Ascii(source.data(), static_cast<int>(bytes.size()), &block), block);
  const std::string dump = block;
  Orbane::Zeph_Release_Mem(&block);
  return dump;
}

}  // namespace

TEST(HexDump, BothStylesAgainstPrintf) {
  std::mt19937 random(5);
  for (std::size_t size = 0; size < 140; ++size) {
    std::string mixed, high;
    for (std::size_t i = 0; i < size; ++i) {
      mixed += static_cast<char>(random());
      high += static_cast<char>(random() | 0x10);
    }
    for (const std::string& bytes : {mixed, high, high.substr(0, size / 2) + '\x0A' + mixed}) {
      GuardedText source(bytes, End::bare);
      const int count = static_cast<int>(bytes.size());
      ASSERT_EQ(Orbane::Zeph_To_Ascii(source.data(), count), printed("%x", bytes)) << size;
      ASSERT_EQ(filled(bytes), printed("%02X", bytes)) << size;
    }
  }
}

TEST(HexDump, TextsEndAtTheZeroByteAndCountsDoNot) {
  char* block = nullptr;
  EXPECT_EQ(Orbane::Zeph_To_Ascii("\xE4\x05"), "e4 5");
  EXPECT_STREQ(Orbane::Zeph_To_Ascii("\xE4\x05", &block), "E4 05");
  char* const kept = block;
  block[6] = 'x';
  EXPECT_EQ(Orbane::Zeph_To_Ascii("A", &block), kept) << "a block with the room is kept";
  EXPECT_EQ(std::string(block, 7), std::string("41\0\0"
                                               "5\0x",
                                               7))
      << "3 * 1 + 1 bytes are written";
  EXPECT_EQ(filled(std::string("\0A", 2)), "00 41");
  EXPECT_EQ(Orbane::Zeph_To_Ascii(""), "");
  for (const int count : {0, -1, INT_MIN}) {
    EXPECT_EQ(Orbane::Zeph_To_Ascii("A", count), "");
    EXPECT_STREQ(Orbane::Zeph_To_Ascii("A", count, &block), "");
  }
  Orbane::Zeph_Release_Mem(&block);
}

TEST(HexDump, RefusedBlockIsReported) {
  REQUIRE_REFUSING_HEAP;
  char* block = nullptr;
  RefusingHeap heap;
  heap.refuse_calloc(1);
  StdoutCapture capture;
  EXPECT_EQ(Orbane::Zeph_To_Ascii("A", &block), nullptr);
  EXPECT_EQ(block, nullptr);
  EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
}
