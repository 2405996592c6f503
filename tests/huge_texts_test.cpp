// Texts longer than an int, or a record, can tell. One page of memory stands for all of them.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <climits>
#include <cstdint>
#include <cstring>

#include "zeph.h"

namespace {

// So many bytes 'a' and a terminator, in as little memory as one block.
class HugeText {
 public:
  explicit HugeText(std::size_t size) : mapped_(size + 2 * block) {
    const int file = memfd_create("text", 0);
    if (ftruncate(file, block) == 0) {
      text_ = static_cast<char*>(
          mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
      for (std::size_t at = 0; at + block <= size; at += block) {
        mmap(text_ + at, block, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0);
      }
      std::memset(text_, 'a', block);
      std::memset(text_ + size / block * block, 'a', size % block);
    }
    close(file);
  }
  ~HugeText() {
    munmap(text_, mapped_);
  }
  HugeText(const HugeText&) = delete;
  HugeText& operator=(const HugeText&) = delete;

  char* data() const {
    return text_;
  }

 private:
  static constexpr std::size_t block = 16 << 20;
  std::size_t mapped_;
  char* text_ = nullptr;
};

}  // namespace

TEST(HugeTexts, AreToldAsFarAsTheResultCanTell) {
  constexpr std::uint64_t longest_record = 4294967280;
  const HugeText text(longest_record + 1);
  char record[32] = "former";
  EXPECT_EQ(Orbane::Zeph_Encrypt(text.data(), record), 0u);
  EXPECT_STREQ(record, "former") << "longer than a record can tell";
  EXPECT_EQ(Orbane::Zeph_Get_Mem_Size(text.data()), INT_MAX);
  text.data()[longest_record] = 'b';
  EXPECT_EQ(Orbane::Zeph_Find_Position(text.data(), "b"), -1) << "behind the largest int";
}
