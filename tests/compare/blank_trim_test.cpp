#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "compare/blank_trim_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// The blanks taken out one by one, with what that leaves behind the text.
void cut_plainly(char* text, bool head, bool tail) {
  while (head && *text == ' ') std::memmove(text, text + 1, std::strlen(text));
  for (std::size_t i = std::strlen(text); tail && i > 0 && text[i - 1] == ' '; --i)
    text[i - 1] = '\0';
}

// Every byte up to the old terminator is as after the plain walk, and a String holds the same text
// in the same capacity.
void expect_trims(const std::string& text) {
  each_row(trims, [&](const auto& family) {
    std::string plain = text + '\0', string = text;
    const std::size_t capacity = string.capacity();
    cut_plainly(&plain[0], family.head, family.tail);
    for (const Edge edge : {Edge::back, Edge::front}) {
      const GuardedText bytes(text, End::terminated, edge);
      family.bytes(bytes.data());
      ASSERT_EQ(std::string(bytes.data(), bytes.size()), plain) << '\'' << text << '\'';
    }
    family.string(string);
    ASSERT_EQ(string, plain.c_str());
    ASSERT_EQ(string.capacity(), capacity);
  });
}

}  // namespace

TEST(BlankTrim, EveryShortTextAndLongRuns) {
  each_text(" a\t", 7, expect_trims);
  for (std::size_t size = 1; size < 200; size += 3) {
    const std::string blanks(size, ' ');
    expect_trims(blanks);
    expect_trims(blanks + "\xA0" + blanks + ' ' + blanks);
    expect_trims(blanks + "a b" + blanks + 'c');
  }
}

TEST(BlankTrim, AZeroByteInAStringIsNoBlank) {
  std::string text("  b \0 ", 6);
  Orbane::Zeph_Trimed(text);
  EXPECT_EQ(text, std::string("b \0", 3));
}
