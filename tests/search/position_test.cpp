#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <initializer_list>
#include <string>

#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

char lower(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

bool exactly(char a, char b) {
  return a == b;
}

bool ignoring_case(char a, char b) {
  return lower(a) == lower(b);
}

int find_plainly(const std::string& text, int start, int end, const std::string& pattern,
                 bool (*same)(char, char)) {
  const int limit = std::min(end, static_cast<int>(text.size()));
  const int size = static_cast<int>(pattern.size());
  for (int i = std::max(start, 0); size > 0 && size <= limit && i <= limit - size; ++i) {
    if (std::equal(pattern.begin(), pattern.end(), text.begin() + i, same)) return i;
  }
  return -1;
}

// The members with a range, on the text with its terminator and on bytes that end at `end`.
void expect_in_range(const std::string& text, int start, int end, const std::string& pattern) {
  SCOPED_TRACE("'" + pattern + "' in '" + text + "' from " + std::to_string(start) + " to " +
               std::to_string(end));
  const int exact = find_plainly(text, start, end, pattern, exactly);
  const int folded = find_plainly(text, start, end, pattern, ignoring_case);
  const std::size_t bare = std::min(text.size(), static_cast<std::size_t>(std::max(end, 0)));
  GuardedText sought(pattern), whole(text), cut(text.substr(0, bare), End::bare);
  const bool ends_inside = end <= static_cast<int>(text.size());
  const char* const p = sought.data();
  for (const char* const t : {whole.data(), ends_inside ? cut.data() : whole.data()}) {
    ASSERT_EQ(Orbane::Zeph_Find_Position(t, start, end, p), exact);
    ASSERT_EQ(Orbane::Zeph_Find_Position_L(t, start, end, p), folded);
    ASSERT_EQ(Orbane::Zeph_Find_SubString(t, start, end, p), exact >= 0);
    ASSERT_EQ(Orbane::Zeph_Find_SubString_L(t, start, end, p), folded >= 0);
  }
}

void expect_position(const std::string& text, const std::string& pattern) {
  SCOPED_TRACE("'" + pattern + "' in '" + text.substr(0, 100) + "'");
  const int exact = find_plainly(text, 0, INT_MAX, pattern, exactly);
  const int folded = find_plainly(text, 0, INT_MAX, pattern, ignoring_case);
  GuardedText t(text), p(pattern);
  ASSERT_EQ(Orbane::Zeph_Find_Position(t.data(), p.data()), exact);
  ASSERT_EQ(Orbane::Zeph_Find_Position_L(t.data(), p.data()), folded);
  ASSERT_EQ(Orbane::Zeph_Find_SubString(t.data(), p.data()), exact >= 0);
  ASSERT_EQ(Orbane::Zeph_Find_SubString_L(t.data(), p.data()), folded >= 0);
}

}  // namespace

TEST(Position, EveryShortTextAndRange) {
  each_text("aA\xC4", 4, [](const std::string& text) {
    each_text("aA", 3, [&](const std::string& pattern) {
      expect_position(text, pattern);
      for (const int start : {0, 1, 3, 4, 5}) {
        for (const int end : {-1, 0, 2, 4, 9}) expect_in_range(text, start, end, pattern);
      }
    });
  });
}

TEST(Position, ExtremeRanges) {
  expect_in_range("hello", -1, 5, "h");
  expect_in_range("hello", INT_MIN, INT_MAX, "lo");
  expect_in_range("hello", INT_MAX, INT_MAX, "h");
  expect_in_range("hello", INT_MIN, INT_MIN, "h");
}

// A long text is searched a piece at a time: matches at, before and across the ends of pieces.
TEST(Position, PiecesOfLongTexts) {
  using Sizes = std::initializer_list<std::size_t>;
  for (const std::size_t size : Sizes{1, 2, 5, 17, 40, 300, 2000}) {
    const std::string pattern = std::string(size / 2, 'x') + "Y" + std::string(size / 2, 'x');
    for (const std::size_t piece : Sizes{128, 2048, 2176, 16384, 34944, 51328}) {
      for (const std::size_t back : Sizes{0, size / 2 + 1, size + 1}) {
        const std::string head(piece > back ? piece - back : 0, 'x');
        expect_position(head + pattern + "tail", pattern);
        expect_position(head + pattern.substr(1), pattern + 'z');
      }
    }
  }
}

TEST(Position, FollowsTheLocale) {
  const ScopedLocale turkish(LC_CTYPE, "tr_TR", "ISO-8859-9");
  if (!turkish.in_force()) GTEST_SKIP() << turkish.reason();
  EXPECT_EQ(Orbane::Zeph_Find_Position_L("sin SIN", "IN"), 5) << "'I' goes with 0xFD";
  EXPECT_EQ(Orbane::Zeph_Find_Position_L("s\xDDN", "in"), 1);
  EXPECT_EQ(Orbane::Zeph_Find_Position_L("a\xE7", 0, 9, "\xC7"), 1);
  EXPECT_FALSE(Orbane::Zeph_Find_SubString_L("a\xE7", 0, 1, "\xC7"));
}
