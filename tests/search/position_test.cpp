#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>

#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// All four members, with a range or without, against the plain search from `start` on.
template <typename... Range>
void expect_found(const std::string& text, std::size_t start, const std::string& pattern,
                  const char* whole, Range... range) {
  const std::size_t from = pattern.empty() ? std::string::npos : start;
  const int exact = static_cast<int>(text.find(pattern, from));
  const int either = static_cast<int>(folded(text).find(folded(pattern), from));
  const char* const p = at_edge(pattern);
  ASSERT_EQ(Orbane::Zeph_Find_Position(whole, range..., p), exact);
  ASSERT_EQ(Orbane::Zeph_Find_Position_L(whole, range..., p), either);
  ASSERT_EQ(Orbane::Zeph_Find_SubString(whole, range..., p), exact >= 0);
  ASSERT_EQ(Orbane::Zeph_Find_SubString_L(whole, range..., p), either >= 0);
}

void expect_position(const std::string& text, const std::string& pattern) {
  SCOPED_TRACE("'" + pattern + "' in '" + text.substr(0, 100) + "'");
  expect_found(text, 0, pattern, GuardedText(text).data());
}

// On the text with its terminator and on bytes that end at `end`.
void expect_in_range(const std::string& text, int start, int end, const std::string& pattern) {
  SCOPED_TRACE("'" + pattern + "' in '" + text + "' from " + std::to_string(start) + " to " +
               std::to_string(end));
  const auto from = static_cast<std::size_t>(std::max(start, 0));
  const std::string seen = text.substr(0, static_cast<std::size_t>(std::max(end, 0)));
  const bool inside = end <= static_cast<int>(text.size());
  expect_found(seen, from, pattern, GuardedText(text).data(), start, end);
  expect_found(seen, from, pattern, GuardedText(seen, inside ? End::bare : End::terminated).data(),
               start, end);
}

}  // namespace

TEST(Position, EveryShortTextAndRange) {
  each_text("aA\xC4", 4, [](const std::string& text) {
    each_text("aA", 3, [&](const std::string& pattern) {
      expect_position(text, pattern);
      for (const int start : {INT_MIN, -1, 0, 1, 3, 4, 5, INT_MAX}) {
        for (const int end : {INT_MIN, -1, 0, 2, 4, 9, INT_MAX}) {
          expect_in_range(text, start, end, pattern);
        }
      }
    });
  });
}

// A long text is searched a piece at a time: matches at, before and across the ends of pieces.
TEST(Position, PiecesOfLongTexts) {
  for (const std::size_t size : {1u, 2u, 5u, 17u, 40u, 300u, 6000u}) {
    const std::string pattern = std::string(size / 2, 'x') + "Y" + std::string(size / 2, 'x');
    for (const std::size_t piece : {128u, 2048u, 2176u, 16384u, 34944u, 51328u}) {
      for (const std::size_t back : {std::size_t{0}, size / 2 + 1, size + 1}) {
        const std::string head(piece > back ? piece - back : 0, 'w');
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
