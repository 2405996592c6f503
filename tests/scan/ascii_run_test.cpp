#include "scan/ascii_run.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;

// The first other byte at each place or nowhere.
TEST(AsciiRun, StopsAtTheFirstOtherByte) {
  for (std::size_t size = 0; size <= 200; ++size) {
    std::string text(size, 'a');
    for (std::size_t at = 0; at <= size; ++at) {
      if (at < size) text[at] = at % 2 ? '\x80' : '\xFF';
      const char *const begin = at_edge(text, End::bare), *const end = begin + size;
      ASSERT_EQ(zeph::ascii_run(begin, end), at) << size;
      ASSERT_EQ(zeph::ascii_run_portable(begin, end), at) << size;
      for (auto* const copy : {zeph::copy_ascii_run, zeph::copy_ascii_run_portable}) {
        GuardedBuffer out(at + zeph::ascii_step);
        ASSERT_EQ(copy(out.data(), begin, end), at) << size;
        ASSERT_EQ(std::string(out.data(), at), text.substr(0, at)) << size;
      }
      if (at < size) text[at] = '\x7F';
    }
  }
}
