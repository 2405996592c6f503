#include "scan/ascii_fold.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;
using zeph::LetterCase;

// Every byte value at every place of a step, in place and into a second buffer.
TEST(AsciiFold, EverySizeAndByte) {
  for (std::size_t size = 0; size <= 256; ++size) {
    for (const LetterCase to : {LetterCase::lower, LetterCase::upper}) {
      std::string bytes, expected;
      const char first = to == LetterCase::lower ? 'A' : 'a';
      for (std::size_t i = 256 - size; i < 256; ++i) {
        bytes += static_cast<char>(i * 37);
        const bool other_case = bytes.back() >= first && bytes.back() <= first + 25;
        expected += static_cast<char>(bytes.back() ^ (other_case ? 0x20 : 0));
      }
      GuardedText source(bytes, End::bare);
      GuardedBuffer front(size, Edge::front), plain(size);
      zeph::put_ascii_fold(to, front.data(), source.data(), size);
      zeph::put_ascii_fold_portable(to, plain.data(), source.data(), size);
      zeph::put_ascii_fold(to, source.data(), source.data(), size);
      for (const char* const out : {source.data(), front.data(), plain.data()}) {
        ASSERT_EQ(std::string(out, size), expected) << size;
      }
    }
  }
}
