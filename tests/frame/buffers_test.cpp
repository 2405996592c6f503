#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "frame/buffers_table.h"
#include "support/exported.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Orbane;
using namespace zeph_test;

const char prepare_refused[] = "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem";

TEST(Buffers, NullReadsAsTheOneEmptyText) {
  char text[] = "ab";
  EXPECT_EQ(Zeph_Get_Mem_Str(text), text);
  EXPECT_EQ(exported(Zeph_Get_Mem_Str)(text), text);
  EXPECT_STREQ(Zeph_Get_Mem_Str(nullptr), "");
  EXPECT_EQ(Zeph_Get_Mem_Str(nullptr), Zeph_Get_Mem_Str(nullptr));
  EXPECT_EQ(Zeph_Get_Mem_Size(nullptr), 0);
  EXPECT_EQ(exported(Zeph_Get_Mem_Size)(nullptr), 0);
  EXPECT_TRUE(Zeph_Copy_Stack(text, static_cast<const char*>(nullptr), 3));
  EXPECT_STREQ(text, "");
  EXPECT_EQ(Zeph_UTF8_to_ANSI(static_cast<const char*>(nullptr)), "");
  EXPECT_EQ(Zeph_ANSI_to_UTF8(static_cast<const char*>(nullptr)), "");
  EXPECT_EQ(Zeph_Version_Info(), Zeph_Version_Info());
}

TEST(Buffers, CopyMemDecidesByTheHeldText) {
  Owned held("hello");
  char* const first = held.block;
  ASSERT_TRUE(Zeph_Copy_Mem(&held.block, "abc"));
  EXPECT_EQ(held.block, first);
  EXPECT_EQ(std::string(held.block, 6), std::string("abc\0o\0", 6)) << "bytes behind stay";
  ASSERT_TRUE(Zeph_Copy_Mem(&held.block, held.block + 1)) << "from inside the held text";
  EXPECT_STREQ(held.block, "bc");
  calloc_gate.refuse(0, 0);
  ASSERT_TRUE(Zeph_Copy_Mem(&held.block, "xyz"));
#ifndef _WIN32
  EXPECT_EQ(calloc_gate.seen, 1) << "a longer text gets a new block, room or not";
  EXPECT_EQ(calloc_gate.last_size, sizeof "xyz");
#endif
  ASSERT_TRUE(Zeph_Copy_Mem(&held.block, nullptr));
  EXPECT_EQ(std::string(held.block, 3), std::string("\0yz", 3)) << "one byte is written";
}

TEST(Buffers, OverlaysTakeTwoTexts) {
  const auto without_a_text = [] {
    char text[] = "abcd";
    EXPECT_FALSE(Zeph_Copy_Mem(text, 9, nullptr, 1));
    EXPECT_FALSE(Zeph_Copy_Mem(nullptr, 0, "XY", 1));
    EXPECT_STREQ(text, "abcd");
  };
  EXPECT_EQ(stdout_of(without_a_text), banner(bad_pointer, 2));
}

TEST(Buffers, PrepareMemDecidesByTheCapacity) {
  Owned owned;
  ASSERT_TRUE(Zeph_Prepare_Mem(&owned.block, 100));
  EXPECT_EQ(std::string(owned.block, 100), std::string(100, '\0'));
  std::strcpy(owned.block, "held");
  char* const first = owned.block;
  for (const int size : {100, 1, 0, -1, INT_MIN}) {
    EXPECT_TRUE(Zeph_Prepare_Mem(&owned.block, size)) << size;
    EXPECT_EQ(owned.block, first) << size;
  }
#ifdef __GLIBC__
  const auto capacity = static_cast<int>(malloc_usable_size(owned.block));
  ASSERT_TRUE(Zeph_Prepare_Mem(&owned.block, capacity));
  EXPECT_STREQ(owned.block, "held");
  ASSERT_TRUE(Zeph_Prepare_Mem(&owned.block, capacity + 1));
  EXPECT_STREQ(owned.block, "") << "one byte more is another block";
#endif
  ASSERT_TRUE(Zeph_Prepare_Mem(&owned.block, 5000));
  EXPECT_EQ(std::string(owned.block, 5000), std::string(5000, '\0'));
}

TEST(Buffers, ARefusalEndsTheOldBlock) {
  for (const int size : {-1, INT_MIN}) {
    Owned none;
    EXPECT_EQ(stdout_of([&] { EXPECT_FALSE(Zeph_Prepare_Mem(&none.block, size)); }),
              banner(prepare_refused));
    EXPECT_EQ(none.text(), "NULL");
  }
  REQUIRE_REFUSING_HEAP;
  Owned owned("short"), copied("short");
  const auto refused = [&] {
    calloc_gate.refuse(1, 2);
    EXPECT_FALSE(Zeph_Prepare_Mem(&owned.block, 5000));
    EXPECT_FALSE(Zeph_Copy_Mem(&copied.block, "a longer one"));
    refuse_no_more();
  };
  EXPECT_EQ(stdout_of(refused).find(banner(prepare_refused)), 0u);
  EXPECT_EQ(owned.block, nullptr);
  EXPECT_EQ(copied.block, nullptr);
  EXPECT_TRUE(Zeph_Prepare_Mem(&owned.block, 5000)) << "ready to start again";
}
