#include "scan/other_byte.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// Runs of every length in texts of every size, against inaccessible pages on both sides.
TEST(OtherByte, EveryRunAndSize) {
  for (std::size_t size = 0; size <= 150; ++size) {
    for (std::size_t run = 0; run <= size; ++run) {
      std::string text(size, ' ');
      if (run < size) text[run] = run % 2 ? '\0' : '\xA0';
      const char* const back = at_edge(text, End::bare);
      const GuardedText front(std::string(text.rbegin(), text.rend()), End::bare, Edge::front);
      ASSERT_EQ(zeph::run_at_front(back, size, ' '), run) << size;
      ASSERT_EQ(zeph::run_at_front_portable(back, size, ' '), run) << size;
      ASSERT_EQ(zeph::run_at_back(front.data(), size, ' '), run) << size;
      ASSERT_EQ(zeph::run_at_back_portable(front.data(), size, ' '), run) << size;
    }
  }
}
