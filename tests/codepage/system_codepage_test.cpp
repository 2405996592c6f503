// On Windows: the same bytes as the system's own conversions, flags 0, for all units and pairs.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "codepage/codepage_data.h"
#include "zeph.h"

namespace {

std::string system_ansi(wchar_t unit) {
  char bytes[8];
  const int size = WideCharToMultiByte(936, 0, &unit, 1, bytes, sizeof bytes, nullptr, nullptr);
  return {bytes, static_cast<std::size_t>(size)};
}

std::string system_utf8(const std::string& text) {
  wchar_t units[8];
  char bytes[32];
  const int count =
      MultiByteToWideChar(936, 0, text.c_str(), static_cast<int>(text.size()), units, 8);
  const int size =
      WideCharToMultiByte(65001, 0, units, count, bytes, sizeof bytes, nullptr, nullptr);
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace

TEST(SystemCodePage, EveryUnit) {
  for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
    if (unit >= 0xD800 && unit <= 0xDFFF) continue;  // no UTF-8
    EXPECT_EQ(Orbane::Zeph_UTF8_to_ANSI(zeph_test::utf8(unit).c_str()),
              system_ansi(static_cast<wchar_t>(unit)))
        << unit;
  }
}

TEST(SystemCodePage, EveryPair) {
  for (int first = 1; first <= 0xFF; ++first) {
    for (int second = 1; second <= 0xFF; ++second) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second)};
      EXPECT_EQ(Orbane::Zeph_ANSI_to_UTF8(text.c_str()), system_utf8(text))
          << first << ' ' << second;
    }
  }
}
