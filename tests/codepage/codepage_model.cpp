#include "codepage/codepage_model.h"

#include <fstream>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {
namespace {

// The well-formed sequences of UTF-8: the lowest and the highest value of each byte in turn.
const std::string well_formed[] = {
    "\x01\x7F",
    "\xC2\xDF\x80\xBF",
    "\xE0\xE0\xA0\xBF\x80\xBF",
    "\xE1\xEC\x80\xBF\x80\xBF",
    "\xED\xED\x80\x9F\x80\xBF",
    "\xEE\xEF\x80\xBF\x80\xBF",
    "\xF0\xF0\x90\xBF\x80\xBF\x80\xBF",
    "\xF1\xF3\x80\xBF\x80\xBF\x80\xBF",
    "\xF4\xF4\x80\x8F\x80\xBF\x80\xBF",
};

// How many bytes at the front of `text` fit the pattern.
std::size_t fitting(const std::string& text, const std::string& pattern) {
  const auto value = [](char byte) { return static_cast<unsigned char>(byte); };
  std::size_t n = 0;
  while (n < text.size() && 2 * n < pattern.size() && value(text[n]) >= value(pattern[2 * n]) &&
         value(text[n]) <= value(pattern[2 * n + 1]))
    ++n;
  return n;
}

std::string expected_ansi(const std::string& text) {
  std::string result;
  for (std::size_t at = 0, size = 1; at < text.size(); at += size) {
    const std::string rest = text.substr(at, 4);
    bool whole = false;
    size = 1;
    for (const std::string& pattern : well_formed) {
      size = std::max(size, fitting(rest, pattern));
      whole = whole || 2 * fitting(rest, pattern) == pattern.size();
    }
    const auto found = code_page().bytes_of.find(rest.substr(0, size));
    const bool known = found != code_page().bytes_of.end();
    result += known ? found->second : whole && size == 4 ? "??" : "?";
  }
  return result;
}

std::string expected_utf8(const std::string& text) {
  std::string result;
  for (std::size_t at = 0, size = 1; at < text.size(); at += size) {
    const auto& unit_of = code_page().unit_of;
    size = unit_of.count(text.substr(at, 1)) ? 1 : 2;
    const auto found = unit_of.find(text.substr(at, size));
    result += found != unit_of.end() ? utf8(found->second) : "?";
  }
  return result;
}

}  // namespace

const CodePage& code_page() {
  static const CodePage page = [] {
    CodePage read;
    std::ifstream file(ZEPH_DATA_DIR "/cp936.tsv");
    for (std::string code, unit, direction; file >> code >> unit >> direction;) {
      std::string bytes;
      for (std::size_t i = 0; i < code.size(); i += 2)
        bytes += static_cast<char>(std::stoul(code.substr(i, 2), nullptr, 16));
      const auto number = static_cast<unsigned>(std::stoul(unit, nullptr, 16));
      read.bytes_of[utf8(number)] = bytes;
      if (direction == "both") read.unit_of[bytes] = number;
    }
    return read;
  }();
  return page;
}

std::string utf8(unsigned unit) {
  const auto tail = [unit](unsigned shift) {
    return static_cast<char>(0x80 | (unit >> shift & 63));
  };
  if (unit < 0x80) return {static_cast<char>(unit)};
  if (unit < 0x800) return {static_cast<char>(0xC0 | unit >> 6), tail(0)};
  return {static_cast<char>(0xE0 | unit >> 12), tail(6), tail(0)};
}

void expect_conversions(const std::string& text) {
  SCOPED_TRACE(testing::PrintToString(text));
  const std::string ansi = expected_ansi(text), utf8 = expected_utf8(text);
  const GuardedText bytes(text);
  std::string string = text + '\0' + "\xE6", source = string;
  ASSERT_EQ(Orbane::Zeph_UTF8_to_ANSI(bytes.data()), ansi);
  ASSERT_EQ(Orbane::Zeph_ANSI_to_UTF8(bytes.data()), utf8);
  ASSERT_EQ(Orbane::Zeph_UTF8_to_ANSI(string), ansi);
  ASSERT_EQ(Orbane::Zeph_ANSI_to_UTF8(string), utf8);
  ASSERT_EQ(string, source) << "unchanged";
}

}  // namespace zeph_test
