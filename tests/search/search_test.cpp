#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"
#include "zeph.h"

using namespace zeph_test;

// A long text is searched a piece at a time: matches at, before and across the ends of pieces.
TEST(Search, PiecesOfLongTexts) {
  const auto expect_position = [](const std::string& text, const std::string& pattern) {
    const GuardedText in(text), wanted(pattern);
    const auto expected = static_cast<int>(text.find(pattern));
    const auto size = static_cast<int>(text.size());
    EXPECT_EQ(Orbane::Zeph_Find_Position(in.data(), wanted.data()), expected);
    EXPECT_EQ(Orbane::Zeph_Find_Position_L(in.data(), wanted.data()), expected);
    EXPECT_EQ(Orbane::Zeph_Find_Position(in.data(), 0, size, wanted.data()), expected);
  };
  for (const std::size_t size : {1u, 2u, 5u, 17u, 40u, 300u, 6000u}) {
    const std::string pattern = std::string(size / 2, 'x') + "Y" + std::string(size / 2, 'x');
    for (const std::size_t piece : {128u, 2048u, 2176u, 16384u, 34944u, 51328u}) {
      for (const std::size_t back : {std::size_t{0}, size / 2 + 1, size + 1}) {
        const std::string head(piece > back ? piece - back : 0, 'w');
        expect_position(head + pattern + "tail", pattern);
        expect_position(head + pattern.substr(1), pattern + 'z');
      }
    }
  }
}
