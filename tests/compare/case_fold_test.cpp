#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

struct Family {
  void (*in_place)(char*);
  void (*copy)(const char*, char*);
  void (*string)(std::string&);
  void (*string_copy)(const std::string&, std::string&);
};
const Family lower = {Orbane::Zeph_Lower, Orbane::Zeph_Lower, Orbane::Zeph_Lower,
                      Orbane::Zeph_Lower};
const Family upper = {Orbane::Zeph_Upper, Orbane::Zeph_Upper, Orbane::Zeph_Upper,
                      Orbane::Zeph_Upper};

// All four forms; the byte text forms see what stands in front of the first zero byte.
void expect_fold(const Family& fold, const std::string& text, const std::string& expected) {
  const std::string bytes = expected.substr(0, expected.find('\0'));
  GuardedText in_place(text), source(text);
  GuardedBuffer target(bytes.size() + 1);
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

const struct {
  const char* why;
  std::string text, lower, upper;
} rows[] = {
    {"empty", "", "", ""},
    {"neighbours of the letters stay", "Ab1-Z@[`{", "ab1-z@[`{", "AB1-Z@[`{"},
    {"a trail byte folds like a letter", "\xC4\x41", "\xC4\x61", "\xC4\x41"},
    {"behind a zero byte in a String alone", {"A\0Bc", 4}, {"a\0bc", 4}, {"A\0BC", 4}},
    {"long and above 0x80", "Chamber \xC4\xE4\xFF\x80 Pressure 0.75 mTorr",
     "chamber \xC4\xE4\xFF\x80 pressure 0.75 mtorr",
     "CHAMBER \xC4\xE4\xFF\x80 PRESSURE 0.75 MTORR"},
};

}  // namespace

TEST(CaseFold, Rows) {
  each_row(rows, [](const auto& row) {
    expect_fold(lower, row.text, row.lower);
    expect_fold(upper, row.text, row.upper);
  });
}

// Short texts and long ones go different ways through a locale; both follow it.
TEST(CaseFold, FollowsTheLocale) {
  const ScopedLocale turkish(LC_CTYPE, "tr_TR", "ISO-8859-9");
  if (!turkish.in_force()) GTEST_SKIP() << turkish.reason();
  for (const std::size_t times : {std::size_t{1}, std::size_t{40}}) {
    std::string text, small, large;
    for (std::size_t i = 0; i < times; ++i) {
      text += "Ii\xC7\xFDz";
      small += "\xFDi\xE7\xFDz";
      large += "I\xDD\xC7IZ";
    }
    expect_fold(lower, text, small);
    expect_fold(upper, text, large);
  }
}

TEST(CaseFold, OtherLocalesWithTheAsciiFold) {
  const ScopedLocale german(LC_CTYPE, "de_DE", "UTF-8");
  if (!german.in_force()) GTEST_SKIP() << german.reason();
  each_row(rows, [](const auto& row) { expect_fold(lower, row.text, row.lower); });
}
