#include "scan/ascii_fold.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"

using namespace zeph_test;
using zeph::LetterCase;

// Every byte value at every place of a step, in place and into a second buffer.
TEST(AsciiFold, EverySizeAndByte) {
  std::string bytes, folded[2];
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i * 37);
  for (const char byte : bytes) {
    folded[0] += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
    folded[1] += byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
  }
  for (std::size_t size = 0; size <= 256; ++size) {
    for (const LetterCase to : {LetterCase::lower, LetterCase::upper}) {
      const std::string expected = folded[to == LetterCase::upper].substr(256 - size);
      GuardedText source(bytes.substr(256 - size), End::bare);
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
