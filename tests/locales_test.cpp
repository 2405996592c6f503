// Folds and decimal points follow the process's locale: the fast path of the "C" locale and the
// runtime's own service alike. The locales are made for the test where none is installed.
#include <clocale>
#include <functional>

#if __has_include(<langinfo.h>)
#include <langinfo.h>
#endif

#include "number/number_harness.h"
#include "support/exported.h"
#include "support/fold.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

// `check` under one of the locales that the build has made with localedef.
void under_locale(int category, const char* name, const std::function<void()>& check) {
#ifndef _WIN32
  setenv("LOCPATH", ZEPH_LOCALES_DIR, 1);
#endif
  if (!std::setlocale(category, name)) GTEST_SKIP() << "no such locale";
  check();
  std::setlocale(category, "C");
}

template <typename Fold>
std::string both_folded(Fold fold, std::string text) {
  std::string bytes = text + '\0', apart = bytes, copy;
  fold(bytes.data());
  fold(text.c_str(), apart.data());
  EXPECT_EQ(bytes, apart);
  fold(text, copy);
  fold(text);
  EXPECT_EQ(text, bytes.c_str()) << "byte text and String";
  EXPECT_EQ(text, copy) << "in place and not";
  return text;
}

// What all the functions that fold make of 'I' and 0xFD, and of the letters 0xC7 and 0xE7.
const struct Folds {
  const char* lower;
  const char* upper;
  bool dotless_equal, cedilla_equal;
} ascii{"i\xDD[\xC7|i\xFD{\xE7", "I\xDD[\xC7|I\xFD{\xE7", false, false},
    turkish{"\xFDi[\xE7|i\xFD{\xE7", "I\xDD[\xC7|\xDDI{\xC7", true, true};

void expect_folds(const Folds& folds) {
  const std::string text = "I\xDD[\xC7|i\xFD{\xE7", padding(100, '-');
  const auto lower = [](auto&&... texts) { Zeph_Lower(texts...); };
  const auto upper = [](auto&&... texts) { Zeph_Upper(texts...); };
  EXPECT_EQ(both_folded(lower, text), folds.lower);
  EXPECT_EQ(both_folded(upper, text), folds.upper);
  EXPECT_EQ(both_folded(lower, padding + text), padding + folds.lower) << "the wide path";
  EXPECT_EQ(both_folded(upper, padding + text), padding + folds.upper);
  const struct {
    const char *a, *b;
    bool equal;
  } pairs[] = {{"I", "\xFD", folds.dotless_equal},
               {"\xC7", "\xE7", folds.cedilla_equal},
               {"[", "{", false},
               {"A", "a", true}};
  for (const auto& pair : pairs) {
    SCOPED_TRACE(pair.a);
    std::string a = pair.a, b = pair.b;
    const std::string list = "x," + padding + "," + a, longer = padding + a;
    // Some sanitizers bring a strcasecmp along that knows no locale.
    if (strcasecmp("\xC7", "\xE7") == (folds.cedilla_equal ? 0 : -32)) {
      EXPECT_EQ(Zeph_Compare_L(pair.a, pair.b), pair.equal);
      EXPECT_EQ(exported<bool(const char*, const char*)>(Zeph_Compare_L)(pair.a, pair.b),
                pair.equal);
      EXPECT_EQ(Zeph_Compare_L(a, b, 9), pair.equal);
      std::string long_a = std::string(300, '-') + a, long_b = std::string(300, '-') + b;
      EXPECT_EQ(Zeph_Compare_L(long_a, long_b), pair.equal);
      EXPECT_EQ(Zeph_Seperate_Char_Get_Index_L(list.c_str(), ',', pair.b), pair.equal ? 2 : -1);
    }
    EXPECT_EQ(Zeph_Find_Position_L(longer.c_str(), pair.b), pair.equal ? 100 : -1);
    EXPECT_EQ(Zeph_Find_Position_L(longer.c_str(), 0, 100, pair.b), -1);
    EXPECT_EQ(Zeph_Find_SubString_L(longer.c_str(), pair.b), pair.equal);
  }
}

void expect_as_runtime(double value) {
  const std::string text = printed("%f", value), brief = printed("%.2e", value);
  char stack[400], appended[400] = "";
  expect_written(value, 6, text.substr(0, 63));
  Zeph_Copy_Stack(stack, value, sizeof stack);
  EXPECT_EQ(stack, text);
  EXPECT_EQ(Zeph_Cat(appended, value), text);
  expect_written(value, -2, brief);
  EXPECT_EQ(Zeph_Splicing(64, "%.2e", value), brief);
}

}  // namespace

TEST(Locales, FoldsOfTheCLocale) {
  expect_folds(ascii);
}

TEST(Locales, FoldsOfASingleByteLocale) {
  under_locale(LC_CTYPE, "tr_TR.ISO-8859-9", [] { expect_folds(turkish); });
}

// The locale is another one, its single bytes fold as in "C".
TEST(Locales, FoldsOfAMultibyteLocale) {
  under_locale(LC_CTYPE, "de_DE.UTF-8", [] { expect_folds(ascii); });
}

#ifdef NL_LOCALE_NAME
// The runtime folds as the thread's own locale does, and so must the wide path.
TEST(Locales, FoldsOfALocaleOfTheThread) {
  locale_t turkish_locale{};
  under_locale(LC_CTYPE, "tr_TR.ISO-8859-9", [&] { turkish_locale = duplocale(LC_GLOBAL_LOCALE); });
  if (!turkish_locale) return;
  uselocale(turkish_locale);
  expect_folds(turkish);
  uselocale(LC_GLOBAL_LOCALE);
  freelocale(turkish_locale);
}
#endif

TEST(Locales, DecimalPoints) {
  expect_as_runtime(-1234.5678);
  expect_read("2.5", 1, 2.5, 2.5);
  under_locale(LC_NUMERIC, "de_DE.UTF-8", [] {
    expect_written(1234.5678, -2, "1,23e+03");
    expect_as_runtime(-1234.5678);
    expect_as_runtime(1e300);
    expect_read("2.5", 1, 2.0, 2.0);  // the test takes a point, and the scan stops at it
    expect_read("2,5e1", 0, before, 25.0);
  });
}
