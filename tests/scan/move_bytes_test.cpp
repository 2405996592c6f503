#include "scan/move_bytes.h"

#include <gtest/gtest.h>

#include <string>

// Every size on both sides of each way to copy, at every distance that overlaps or touches.
TEST(MoveBytes, CopiesAsIfThroughASpare) {
  std::string pattern;
  for (int i = 0; i < 400; ++i) pattern += static_cast<char>(i * 7 + 1);
  for (std::size_t size = 0; size <= 130; ++size) {
    for (std::size_t to = 0; to <= 260; ++to) {
      std::string expected = pattern, moved = pattern;
      expected.replace(to, size, pattern.substr(130, size));
      zeph::move_bytes(&moved[to], &moved[130], size);
      ASSERT_EQ(moved, expected) << size << " bytes to " << to;
    }
  }
}
