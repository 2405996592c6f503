// Texts longer than an int, or a record, can tell. One page of memory stands for all of them.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <climits>
#include <cstring>

#include "support/exported.h"
#include "zeph.h"

TEST(HugeTexts, AreToldAsFarAsTheResultCanTell) {
  constexpr std::size_t block = 16 << 20, longest_record = 4294967280, size = longest_record + 1;
  const int file = memfd_create("text", 0);
  ASSERT_EQ(ftruncate(file, block), 0);
  const int access = PROT_READ | PROT_WRITE;
  void* const pages = mmap(nullptr, size + block, access, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(pages, MAP_FAILED);
  char* const text = static_cast<char*>(pages);
  std::size_t end = 0;
  for (; end + block <= size; end += block) {
    mmap(text + end, block, access, MAP_SHARED | MAP_FIXED, file, 0);
  }
  std::memset(text, 'a', block);
  std::memset(text + end, 'a', size - end);
  close(file);
  char record[32] = "former";
  EXPECT_EQ(Orbane::Zeph_Encrypt(text, record), 0u);
  EXPECT_STREQ(record, "former") << "longer than a record can tell";
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Size(text), INT_MAX);
  EXPECT_EQ(zeph_test::exported(Orbane::Zeph_Get_Mem_Size)(text), INT_MAX);
  text[longest_record] = 'b';
  EXPECT_EQ(Orbane::Zeph_Find_Position(text, "b"), -1) << "behind the largest int";
  munmap(pages, size + block);
}
