// On Windows: the same bytes as the system's own conversions, flags 0, for all units and pairs.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "codepage/codepage_model.h"
#include "zeph.h"

namespace {

// From one code page to another over UTF-16.
std::string converted(unsigned from, unsigned to, const std::string& text) {
  wchar_t units[8];
  char bytes[32];
  const int count =
      MultiByteToWideChar(from, 0, text.c_str(), static_cast<int>(text.size()), units, 8);
  const int size = WideCharToMultiByte(to, 0, units, count, bytes, sizeof bytes, nullptr, nullptr);
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace

TEST(SystemCodePage, EveryUnitAndEveryPair) {
  for (unsigned i = 1; i <= 0xFFFF; ++i) {
    const std::string text = zeph_test::utf8(i);
    const bool surrogate = i >= 0xD800 && i <= 0xDFFF;  // no UTF-8
    if (!surrogate) {
      EXPECT_EQ(Orbane::Zeph_UTF8_to_ANSI(text.c_str()), converted(65001, 936, text)) << i;
    }
    if (i < 0x100 || i % 0x100 == 0) continue;
    const std::string pair = {static_cast<char>(i >> 8), static_cast<char>(i)};
    EXPECT_EQ(Orbane::Zeph_ANSI_to_UTF8(pair.c_str()), converted(936, 65001, pair)) << i;
  }
}
