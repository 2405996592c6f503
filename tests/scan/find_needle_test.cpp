#include "scan/find_needle.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "support/table.h"

using namespace zeph_test;

namespace {

// A fold that is not that of the ASCII letters: 'i' goes with 0xDD and 0xC4 with 0xE4.
char other_fold(char byte) {
  return byte == 'i' ? '\xDD' : byte == '\xE4' ? '\xC4' : byte;
}

void expect_found(std::string_view text, const std::string& needle) {
  static unsigned char table[256];
  for (int i = 0; i < 256; ++i) {
    table[i] = static_cast<unsigned char>(other_fold(static_cast<char>(i)));
  }
  const std::string_view edged(at_edge(needle, End::bare), needle.size());
  const std::string haystack(text);
  const std::size_t exact = haystack.find(needle);
  ASSERT_EQ(zeph::find_needle(text, edged), exact) << text << ' ' << needle;
  ASSERT_EQ(zeph::find_needle_portable(text, edged), exact) << text << ' ' << needle;
  ASSERT_EQ(zeph::find_needle_ignoring_case(text, edged), folded(haystack).find(folded(needle)))
      << text << ' ' << needle;
  ASSERT_EQ(zeph::find_needle_by_table(text, edged, table),
            folded(haystack, other_fold).find(folded(needle, other_fold)))
      << text << ' ' << needle;
}

void expect_found_in(const std::string& text, const std::string& needle) {
  for (const Edge edge : {Edge::front, Edge::back}) {
    const GuardedText guarded(text, End::bare, edge);
    expect_found({guarded.data(), guarded.size()}, needle);
  }
}

}  // namespace

TEST(FindNeedle, EveryShortPair) {
  each_text("aA[", 6, [](const std::string& text) {
    const GuardedText guarded(text, End::bare);
    each_text("a{A", 3, [&](const std::string& needle) {
      expect_found({guarded.data(), guarded.size()}, needle);
    });
  });
}

// Pieces of a text, whole, in the other case and with one byte changed, for all the steps of wide
// instructions. '@' and '`', '[' and '{' differ as the two cases of a letter do.
TEST(FindNeedle, RandomPieces) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t n) { return n == 0 ? 0 : random() % n; };
  for (std::size_t size = 1; size <= 420; ++size) {
    const std::string alphabet =
        std::string("ab@`[{iI\xDD\xC4\xE4Zz\0", 14).substr(0, 2 + size % 13);
    std::string text;
    while (text.size() < size) text += alphabet[below(alphabet.size())];
    const GuardedText guarded(text, End::bare);
    for (int i = 0; i < 30; ++i) {
      std::string needle = text.substr(below(size), 1 + below(i < 20 ? 6 : size));
      if (i % 3 == 1) needle[below(needle.size())] ^= 0x20;
      if (i % 3 == 2) needle[below(needle.size())] = alphabet[below(alphabet.size())];
      expect_found({guarded.data(), size}, needle);
    }
  }
}

// Filters do not get through these: runs of one byte, and Fibonacci's word, which repeats in every
// way but a simple one.
TEST(FindNeedle, RepetitiveTexts) {
  const std::string a(3000, 'a');
  for (std::size_t size = 1; size < 300; size += 7) {
    expect_found_in(a + 'b', a.substr(0, size) + 'b');
    expect_found_in('b' + a, 'b' + a.substr(0, size));
    expect_found_in(a + 'b' + a, a.substr(0, size) + 'b' + a.substr(0, size / 2));
  }
  std::string word = "a", next = "ab";
  while (word.size() < 20000) word.swap(next += word);
  for (std::size_t size = 10; size < 9000; size += size / 3) {
    std::string needle = word.substr(size / 2, size);
    expect_found_in(word, needle);
    for (const std::size_t changed : {size / 3, size / 2, size - 1}) {
      needle[changed] ^= 'a' ^ 'b';
      expect_found_in(word, needle);
    }
  }
}
