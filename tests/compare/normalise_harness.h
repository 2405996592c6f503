// Comparison, folds and trims by all forms of a function.
#ifndef ZEPH_TESTS_COMPARE_NORMALISE_HARNESS_H
#define ZEPH_TESTS_COMPARE_NORMALISE_HARNESS_H

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "compare/blank_trim_table.h"
#include "compare/case_fold_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

namespace zeph_test {

// All forms, whole or up to a number.
template <typename... Number>
void expect_comparison(const char* a, const char* b, bool exact, bool folded, Number... n) {
  std::string string_a = a, string_b = b;
  EXPECT_EQ(Orbane::Zeph_Compare(a, b, n...), exact) << a << ' ' << b;
  EXPECT_EQ(Orbane::Zeph_Compare(string_a, string_b, n...), exact);
  EXPECT_EQ(Orbane::Zeph_Compare_L(a, b, n...), folded) << a << ' ' << b;
  EXPECT_EQ(Orbane::Zeph_Compare_L(string_a, string_b, n...), folded);
}

// The byte text forms see what stands in front of the first zero byte.
inline void expect_fold(const FoldForms& fold, const std::string& text,
                        const std::string& expected) {
  const std::string bytes = expected.c_str();
  const GuardedText in_place(text), source(text);
  const GuardedBuffer target(bytes.size() + 1);
  fold.in_place(in_place.data());
  EXPECT_EQ(std::string(in_place.data(), text.size()), bytes + text.substr(bytes.size()));
  fold.copy(source.data(), target.data());
  EXPECT_EQ(std::string(target.data(), target.size()), bytes + '\0');
  fold.copy(source.data(), source.data());
  EXPECT_STREQ(source.data(), bytes.c_str());
  std::string string = text, copy = "former content", same = text;
  fold.string(string);
  fold.string_copy(text, copy);
  fold.string_copy(same, same);
  for (const std::string& result : {string, copy, same}) EXPECT_EQ(result, expected);
}

// The blanks taken out one by one, with what that leaves behind the text. Every byte up to the old
// terminator is the same, and a String holds the same text in the same capacity.
inline void expect_trims(const std::string& text) {
  each_row(trims, [&](const auto& family) {
    std::string plain = text + '\0', string = text;
    char* const start = &plain[0];
    while (family.head && *start == ' ') std::memmove(start, start + 1, std::strlen(start));
    for (std::size_t i = std::strlen(start); family.tail && i > 0 && start[i - 1] == ' '; --i)
      start[i - 1] = '\0';
    const std::size_t capacity = string.capacity();
    const GuardedText bytes(text);
    family.bytes(bytes.data());
    ASSERT_EQ(std::string(bytes.data(), bytes.size()), plain) << '\'' << text << '\'';
    family.string(string);
    ASSERT_EQ(string, start);
    ASSERT_EQ(string.capacity(), capacity);
  });
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_NORMALISE_HARNESS_H
