#include <gtest/gtest.h>

#include <string>

#include "codepage/codepage_model.h"
#include "zeph.h"

using namespace zeph_test;
using Orbane::Zeph_ANSI_to_UTF8;
using Orbane::Zeph_UTF8_to_ANSI;

TEST(CodePage, EveryUnit) {
  ASSERT_EQ(code_page().bytes_of.size(), 24482u);
  std::string all;
  for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
    ASSERT_NO_FATAL_FAILURE(expect_conversions(utf8(unit)));
    all += utf8(unit);
  }
  for (const char* shift : {"", "a", "ab", "\xE6\xB8\xA9"}) expect_conversions(shift + all);
}

TEST(CodePage, EveryByteAndEveryPair) {
  std::string all;
  for (int first = 1; first <= 0xFF; ++first) {
    for (int second = 0; second <= 0xFF; ++second) {
      const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      ASSERT_NO_FATAL_FAILURE(expect_conversions(pair.c_str()));
      if (code_page().unit_of.count(pair)) all += pair;
    }
  }
  expect_conversions(all);
}
