#include "scan/find_byte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// Texts that end at an inaccessible page right behind the last byte that may be read.
TEST(FindByte, StopsAtTheDecidingByte) {
  for (std::size_t size = 0; size <= 4000; size < 130 ? ++size : size += 197) {
    SCOPED_TRACE(size);
    const std::string plain(size, 'a');
    GuardedText hit(plain + '\xC4', End::bare), miss(plain), full(plain, End::bare);
    EXPECT_EQ(zeph::find_byte_or_end(hit.data(), '\xC4'), hit.data() + size);
    EXPECT_EQ(zeph::find_byte_or_end(miss.data(), '\xC4'), miss.data() + size);
    EXPECT_EQ(zeph::find_byte_or_end(miss.data(), '\0'), miss.data() + size);
    EXPECT_EQ(zeph::find_byte_or_end(full.data(), 'b', size), full.data() + size);
    for (const std::size_t most : {size / 2, size + 1, size + 1000}) {
      const std::size_t at = std::min(most, size);
      GuardedText closed(plain + '\xC4');
      EXPECT_EQ(zeph::find_byte_or_end(closed.data(), '\xC4', most), closed.data() + at);
      EXPECT_EQ(zeph::find_byte_or_end(miss.data(), '\xC4', most), miss.data() + at);
      if (most > size + 1) continue;
      EXPECT_EQ(zeph::find_byte_or_end(hit.data(), '\xC4', most), hit.data() + at);
    }
  }
}
