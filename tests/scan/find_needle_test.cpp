#include "scan/find_needle.h"

#include <gtest/gtest.h>

#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"

using namespace zeph_test;

namespace {

void expect_found(const std::string& haystack, const std::string& needle) {
  GuardedText text(haystack, End::bare), pattern(needle, End::bare);
  const std::string_view view(text.data(), text.size()), piece(pattern.data(), pattern.size());
  ASSERT_EQ(zeph::find_needle(view, piece), haystack.find(needle)) << haystack << ' ' << needle;
  if (needle.empty()) return;
  ASSERT_EQ(zeph::find_needle_portable(view, piece), haystack.find(needle))
      << haystack << ' ' << needle;
}

}  // namespace

TEST(FindNeedle, EveryShortPair) {
  each_text("ab", 5, [](const std::string& needle) {
    each_text("ab", 8, [&](const std::string& haystack) { expect_found(haystack, needle); });
  });
}

TEST(FindNeedle, LongNeedles) {
  const std::string a(300, 'a'), ab = [] {
    std::string text;
    for (int i = 0; i < 150; ++i) text += "ab\xC4";
    return text;
  }();
  for (std::size_t size = 1; size < 300; size += 7) {
    expect_found(a + 'b', a.substr(0, size) + 'b');
    expect_found('b' + a, 'b' + a.substr(0, size));
    expect_found(ab + ab + 'x', ab.substr(size % 3, size) + 'x');
    expect_found(a + 'b' + a, a.substr(0, size) + 'b' + a.substr(0, size / 2));
    expect_found(ab, ab.substr(1, size) + ab.substr(1, size));
  }
}
