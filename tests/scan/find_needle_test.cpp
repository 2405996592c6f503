#include "scan/find_needle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"

using namespace zeph_test;

namespace {

// A fold that is not that of the ASCII letters: 'i' goes with 0xDD and 0xC4 with 0xE4.
struct OtherFold {
  unsigned char table[256];
  OtherFold() {
    for (int i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
    table[0x69] = 0xDD;
    table[0xE4] = 0xC4;
  }
};

char lower(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

template <typename Same>
std::size_t find_plainly(const std::string& text, const std::string& needle, Same same) {
  const auto found = std::search(text.begin(), text.end(), needle.begin(), needle.end(), same);
  if (found == text.end() && !needle.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(found - text.begin());
}

void expect_found(std::string_view text, const std::string& needle_bytes) {
  static const OtherFold other;
  GuardedText guarded(needle_bytes, End::bare);
  const std::string_view needle(guarded.data(), guarded.size());
  const std::string haystack(text);
  const std::size_t exact = haystack.find(needle);
  ASSERT_EQ(zeph::find_needle(text, needle), exact) << text << ' ' << needle;
  ASSERT_EQ(zeph::find_needle_portable(text, needle), exact) << text << ' ' << needle;
  ASSERT_EQ(
      zeph::find_needle_ignoring_case(text, needle),
      find_plainly(haystack, needle_bytes, [](char a, char b) { return lower(a) == lower(b); }))
      << text << ' ' << needle;
  const auto fold = [](char byte) { return other.table[static_cast<unsigned char>(byte)]; };
  ASSERT_EQ(
      zeph::find_needle_by_table(text, needle, other.table),
      find_plainly(haystack, needle_bytes, [&](char a, char b) { return fold(a) == fold(b); }))
      << text << ' ' << needle;
}

void expect_found_in(const std::string& text, const std::string& needle) {
  for (const Edge edge : {Edge::front, Edge::back}) {
    GuardedText guarded(text, End::bare, edge);
    expect_found({guarded.data(), guarded.size()}, needle);
  }
}

// The words of this family repeat in every way but a simple one: filters do not get through them.
std::string fibonacci_word(std::size_t size) {
  std::string word = "a", next = "ab";
  while (word.size() < size) word.swap(next += word);
  return word.substr(0, size);
}

}  // namespace

TEST(FindNeedle, EveryShortPair) {
  each_text("aA[", 6, [](const std::string& text) {
    GuardedText guarded(text, End::bare);
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
    GuardedText guarded(text, End::bare);
    for (int i = 0; i < 30; ++i) {
      std::string needle = text.substr(below(size), 1 + below(i < 20 ? 6 : size));
      if (i % 3 == 1) needle[below(needle.size())] ^= 0x20;
      if (i % 3 == 2) needle[below(needle.size())] = alphabet[below(alphabet.size())];
      expect_found({guarded.data(), size}, needle);
    }
  }
}

TEST(FindNeedle, RepetitiveTexts) {
  const std::string a(3000, 'a'), word = fibonacci_word(20000);
  for (std::size_t size = 1; size < 300; size += 7) {
    expect_found_in(a + 'b', a.substr(0, size) + 'b');
    expect_found_in('b' + a, 'b' + a.substr(0, size));
    expect_found_in(a + 'b' + a, a.substr(0, size) + 'b' + a.substr(0, size / 2));
  }
  for (std::size_t size = 10; size < 9000; size += size / 3) {
    std::string needle = word.substr(size / 2, size);
    expect_found_in(word, needle);
    for (const std::size_t changed : {size / 3, size / 2, size - 1}) {
      needle[changed] ^= 'a' ^ 'b';
      expect_found_in(word, needle);
    }
  }
}
