#include "scan/find_byte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// Texts that end at an inaccessible page right behind the byte that decides.
TEST(FindByte, StopsAtTheDecidingByte) {
  for (std::size_t size = 0; size <= 600; size < 130 ? ++size : size += 47) {
    SCOPED_TRACE(size);
    const std::string plain(size, 'a');
    GuardedText hit(plain + '\xC4', End::bare), miss(plain), full(plain, End::bare);
    EXPECT_EQ(zeph::find_byte_or_end(miss.data(), '\0'), miss.data() + size);
    EXPECT_EQ(zeph::find_byte_or_end(full.data(), 'b', size), full.data() + size);
    for (const char* const text : {hit.data(), miss.data()}) {
      EXPECT_EQ(zeph::find_byte_or_end(text, '\xC4'), text + size);
      for (const std::size_t most : {size / 2, size + 1, size + 1000}) {
        EXPECT_EQ(zeph::find_byte_or_end(text, '\xC4', most), text + std::min(most, size));
      }
    }
  }
}
