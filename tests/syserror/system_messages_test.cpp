#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <map>
#include <string>

#include "support/host_last_error.h"
#include "zeph.h"

namespace {

constexpr std::size_t result_size = 512;

const char* message(std::uint32_t code) {
  zeph_test::set_last_error(code);
  errno = 77;
  const char* const text = Orbane::Zeph_Get_SysErrMsg();
  EXPECT_EQ(errno, 77);
  EXPECT_EQ(zeph_test::get_last_error(), code);
  return text;
}

// The text with '#' for each Chinese character, which has `wide` bytes.
std::string shape(const std::string& text, std::size_t wide) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); i += (text[i] & 0x80) != 0 ? wide : 1) {
    result += (text[i] & 0x80) != 0 ? '#' : text[i];
  }
  return result;
}

std::map<std::uint32_t, std::string> rows_of_data() {
  std::map<std::uint32_t, std::string> rows;
  std::ifstream data(ZEPH_DATA_DIR "/system-messages.tsv", std::ios::binary);
  for (std::string code, text; std::getline(data, code, '\t') && std::getline(data, text);) {
    rows[static_cast<std::uint32_t>(std::stoul(code))] = text;
  }
  return rows;
}

}  // namespace

TEST(SystemMessages, FallBackOnTheCodeAsASignedNumber) {
  const std::string start = "\317\265\315\263\264\355\316\363\302\353:[";  // code page 936
  EXPECT_EQ(message(34), start + "34]");
  EXPECT_EQ(message(2147483647), start + "2147483647]");
  EXPECT_EQ(message(2147483648), start + "-2147483648]");
  EXPECT_EQ(message(4294967295), start + "-1]");
}

TEST(SystemMessages, EveryCodeHasItsRowOrTheFallback) {
  const auto rows = rows_of_data();
  ASSERT_EQ(rows.size(), 459U);
  const char* const result = message(0);
  for (std::uint32_t code = 0; code < 1500; ++code) {
    message(193);  // the longest, of which nothing may stay behind
    ASSERT_EQ(message(code), result);
    const auto row = rows.find(code);
    const std::string fallback = "系统错误码:[" + std::to_string(code) + "]";
    EXPECT_EQ(shape(result, 2), shape(row == rows.end() ? fallback : row->second, 3));
    EXPECT_TRUE(std::all_of(result + std::strlen(result), result + result_size,
                            [](char byte) { return byte == '\0'; }));
  }
}
