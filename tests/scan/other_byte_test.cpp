#include "scan/other_byte.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// Runs of every length in texts of every size, against inaccessible pages on both sides.
TEST(OtherByte, EveryRunAndSize) {
  for (std::size_t size = 0; size <= 150; ++size) {
    GuardedText back(std::string(size, ' '), End::bare);
    for (std::size_t run = 0; run <= size; ++run) {
      SCOPED_TRACE(std::to_string(run) + " of " + std::to_string(size));
      std::string text(size, ' ');
      if (run < size) text[run] = run % 2 ? '\0' : '\xA0';
      text.copy(back.data(), size);
      ASSERT_EQ(zeph::run_at_front(back.data(), size, ' '), run);
      ASSERT_EQ(zeph::run_at_front_portable(back.data(), size, ' '), run);
      GuardedText mirrored(std::string(text.rbegin(), text.rend()), End::bare, Edge::front);
      ASSERT_EQ(zeph::run_at_back(mirrored.data(), size, ' '), run);
      ASSERT_EQ(zeph::run_at_back_portable(mirrored.data(), size, ' '), run);
    }
  }
}
