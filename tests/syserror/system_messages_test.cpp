#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <map>
#include <string>

#include "zeph.h"

#ifdef _WIN32
#include <windows.h>
#else
// This program is a host that was ported from Windows: it brings the last error along.
static std::uint32_t last_error = 0;

extern "C" std::uint32_t GetLastError() {
  errno = EDOM;  // a host's function may spoil it
  return last_error;
}

static void SetLastError(std::uint32_t code) {
  last_error = code;
}
#endif

namespace {

const char* message(std::uint32_t code) {
  SetLastError(code);
  errno = 77;
  const char* const text = Orbane::Zeph_Get_SysErrMsg();
  EXPECT_EQ(errno, 77);
  EXPECT_EQ(GetLastError(), code);
  return text;
}

// The whole result: nothing of another message may stay behind the text.
void expect_message(std::uint32_t code, const std::string& text) {
  const char* const longest = message(193);
  EXPECT_EQ(message(code), longest);
  EXPECT_EQ(std::string(longest, 512), text + std::string(512 - text.size(), '\0'));
}

}  // namespace

TEST(SystemMessages, EveryCodeHasItsRowOrTheFallback) {
  std::map<std::uint32_t, std::string> rows;
  std::ifstream data(ZEPH_DATA_DIR "/system-messages.tsv", std::ios::binary);
  for (std::string code, text; std::getline(data, code, '\t') && std::getline(data, text);) {
    rows[static_cast<std::uint32_t>(std::stoul(code))] = text;
  }
  ASSERT_EQ(rows.size(), 459u);
  for (std::uint32_t code = 0; code < 1500; ++code) {
    const std::string fallback = "系统错误码:[" + std::to_string(code) + "]";
    std::string text = rows.count(code) ? rows[code] : fallback;
    expect_message(code, Orbane::Zeph_UTF8_to_ANSI(text));
  }
}
