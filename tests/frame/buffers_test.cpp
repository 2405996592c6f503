#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

#include "frame/buffers_table.h"
#include "support/guarded_buffer.h"
#include "support/outcome.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

const char prepare_refused[] = "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem";

TEST(MemText, NullReadsAsTheOneEmptyText) {
  char text[] = "ab";
  char empty[] = "";
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Str(text), text);
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Str(empty), empty);
  EXPECT_STREQ(Orbane::Zeph_Get_Mem_Str(nullptr), "");
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Str(nullptr), Orbane::Zeph_Get_Mem_Str(nullptr));
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Size(text), 2);
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Size(nullptr), 0);
}

TEST(CopyMem, DecidesByTheHeldText) {
  Owned held;
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&held.block, "hello"));
  char* const first = held.block;
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&held.block, "abc"));
  EXPECT_EQ(held.block, first);
  EXPECT_EQ(std::string(held.block, 6), std::string("abc\0o\0", 6)) << "bytes behind stay";
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&held.block, held.block + 1)) << "from inside the held text";
  EXPECT_STREQ(held.block, "bc");
  RefusingHeap heap;
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&held.block, "xyz"));
#ifndef _WIN32
  EXPECT_EQ(heap.callocs(), 1) << "a longer text gets a new block, room or not";
  EXPECT_EQ(heap.last_calloc(), sizeof "xyz");
#endif
  EXPECT_STREQ(held.block, "xyz");
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&held.block, nullptr));
  EXPECT_EQ(std::string(held.block, 3), std::string("\0yz", 3)) << "one byte is written";
  Owned fresh;
  ASSERT_TRUE(Orbane::Zeph_Copy_Mem(&fresh.block, nullptr));
  EXPECT_STREQ(fresh.block, "");
}

TEST(Overlay, WritesInsideTheTextOnly) {
  each_row(overlays, [](const auto& row) {
    GuardedText target(row.target ? row.target : "");
    GuardedText source(row.source ? row.source : "");
    StdoutCapture capture;
    EXPECT_EQ(Orbane::Zeph_Copy_Mem(row.target ? target.data() : nullptr, row.start,
                                    row.source ? source.data() : nullptr, row.count),
              row.report == nullptr);
    if (row.result) {
      EXPECT_STREQ(target.data(), row.result);
    }
    EXPECT_EQ(capture.text(), row.report ? banner(row.report) : "");
  });
  GuardedText bare("XY", End::bare);
  char line[] = "abcd";
  EXPECT_TRUE(Orbane::Zeph_Copy_Mem(line, 1, bare.data(), 2)) << "count ends the source";
  EXPECT_STREQ(line, "aXYd");
}

TEST(PrepareMem, DecidesByTheCapacity) {
  Owned owned;
  ASSERT_TRUE(Orbane::Zeph_Prepare_Mem(&owned.block, 100));
  EXPECT_EQ(std::string(owned.block, 100), std::string(100, '\0'));
  std::strcpy(owned.block, "held");
  char* const first = owned.block;
  for (const int size : {100, 1, 0, -1, INT_MIN}) {
    EXPECT_TRUE(Orbane::Zeph_Prepare_Mem(&owned.block, size)) << size;
    EXPECT_EQ(owned.block, first) << size;
  }
  EXPECT_STREQ(owned.block, "held");
  ASSERT_TRUE(Orbane::Zeph_Prepare_Mem(&owned.block, 5000));
  EXPECT_EQ(std::string(owned.block, 5000), std::string(5000, '\0'));
}

TEST(PrepareMem, ARefusalEndsTheOldBlock) {
  for (const int size : {-1, INT_MIN}) {
    char* block = nullptr;
    StdoutCapture capture;
    EXPECT_FALSE(Orbane::Zeph_Prepare_Mem(&block, size));
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(capture.text(), banner(prepare_refused));
  }
  REQUIRE_REFUSING_HEAP;
  Owned owned;
  Orbane::Zeph_Prepare_Mem(&owned.block, 10);
  RefusingHeap heap;
  heap.refuse_calloc(1);
  StdoutCapture capture;
  EXPECT_FALSE(Orbane::Zeph_Prepare_Mem(&owned.block, 5000)) << "the old block is freed first";
  EXPECT_EQ(owned.block, nullptr);
  EXPECT_EQ(capture.text(), banner(prepare_refused));
  EXPECT_TRUE(Orbane::Zeph_Prepare_Mem(&owned.block, 5000)) << "and ready to start again";
}

TEST(ReleaseMem, LeavesNull) {
  char* block = static_cast<char*>(std::malloc(8));
  Orbane::Zeph_Release_Mem(&block);
  EXPECT_EQ(block, nullptr);
  Orbane::Zeph_Release_Mem(&block);
  EXPECT_EQ(block, nullptr);
}

TEST(SetMem, FillsWithTheLowByte) {
  GuardedBuffer room(3);
  EXPECT_EQ(Orbane::Zeph_Set_Mem(room.data(), 0x1C4, 2), room.data());
  EXPECT_EQ(std::string(room.data(), 3), "\xC4\xC4\x5A");
  EXPECT_EQ(Orbane::Zeph_Set_Mem(nullptr, 1, 0), nullptr);
}

TEST(CopyStack, TextIsCutAtTheRoom) {
  each_row(cut_texts, [](const auto& row) {
    GuardedBuffer target(static_cast<std::size_t>(row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(target.data(), row.source, row.size));
    EXPECT_STREQ(target.data(), row.result);
    EXPECT_TRUE(target.untouched(std::string(row.result).size() + 1));
  });
  GuardedText bare("abc", End::bare);
  char line[4];
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(line, bare.data(), 4)) << "reads no further than it writes";
  EXPECT_STREQ(line, "abc");
}

TEST(CopyStack, NumbersAreCutAtTheRoom) {
  each_row(cut_numbers, [](const auto& row) {
    GuardedBuffer integer(static_cast<std::size_t>(row.size));
    GuardedBuffer real(static_cast<std::size_t>(row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(integer.data(), row.integer, row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(real.data(), row.real, row.size));
    EXPECT_STREQ(integer.data(), row.integer_text);
    EXPECT_STREQ(real.data(), row.real_text);
    EXPECT_TRUE(integer.untouched(std::string(row.integer_text).size() + 1));
  });
}

TEST(CopyStack, SizeZeroAndNegative) {
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, "a", 0));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, 1, 0));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, 1.0, 0));
  GuardedBuffer text(4), integer(3), real(9);
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(text.data(), "abc", -1)) << "a negative size is no limit";
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(integer.data(), -5, INT_MIN));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(real.data(), 0.25, -1));
  EXPECT_STREQ(text.data(), "abc");
  EXPECT_STREQ(integer.data(), "-5");
  EXPECT_STREQ(real.data(), "0.250000");
  GuardedBuffer longest(318);
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(longest.data(), -DBL_MAX, -1));
  EXPECT_EQ(std::string(longest.data()).size(), 317U);
}

TEST(Version, IsAConstantText) {
  const char* const version = Orbane::Zeph_Version_Info();
  EXPECT_STREQ(version, "0003-20250729");
  EXPECT_EQ(version, Orbane::Zeph_Version_Info());
}
