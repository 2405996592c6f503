#include <gtest/gtest.h>

#include <string>

#include "compare/case_fold_table.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// All four forms; the byte text forms see what stands in front of the first zero byte.
void expect_fold(const FoldForms& fold, const std::string& text, const std::string& expected) {
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

void expect_both(const std::string& text, const std::string& small, const std::string& large) {
  expect_fold(lowers, text, small);
  expect_fold(uppers, text, large);
}

}  // namespace

TEST(CaseFold, Rows) {
  each_row(fold_rows, [](const auto& row) { expect_both(row.text, row.lower, row.upper); });
}

// Short texts and long ones go different ways through a locale; both follow it.
TEST(CaseFold, FollowsTheLocale) {
  const ScopedLocale turkish(LC_CTYPE, "tr_TR", "ISO-8859-9");
  if (!turkish.in_force()) GTEST_SKIP() << turkish.reason();
  std::string text, small, large;
  while (text.size() < 200) {
    expect_both(text += "Ii\xC7\xFDz", small += "\xFDi\xE7\xFDz", large += "I\xDD\xC7IZ");
  }
}

TEST(CaseFold, OtherLocalesWithTheAsciiFold) {
  const ScopedLocale german(LC_CTYPE, "de_DE", "UTF-8");
  if (!german.in_force()) GTEST_SKIP() << german.reason();
  each_row(fold_rows, [](const auto& row) { expect_both(row.text, row.lower, row.upper); });
}
