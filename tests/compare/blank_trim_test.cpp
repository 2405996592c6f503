#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// The blanks taken out one by one, with what that leaves behind the text.
void cut_tail(char* text) {
  for (std::size_t i = std::strlen(text); i > 0 && text[i - 1] == ' '; --i) text[i - 1] = '\0';
}

void cut_head(char* text) {
  while (*text == ' ') std::memmove(text, text + 1, std::strlen(text));
}

void cut_both(char* text) {
  cut_head(text);
  cut_tail(text);
}

const struct {
  const char* why;
  void (*bytes)(char*);
  void (*string)(std::string&);
  void (*plain)(char*);
} families[] = {
    {"tail", Orbane::Zeph_Del_TailSpace, Orbane::Zeph_Del_TailSpace, cut_tail},
    {"head", Orbane::Zeph_Del_HeadSpace, Orbane::Zeph_Del_HeadSpace, cut_head},
    {"both", Orbane::Zeph_Trimed, Orbane::Zeph_Trimed, cut_both},
};

// Every byte up to the old terminator is as after the plain walk, and a String holds the same text
// in the same capacity.
void expect_trims(const std::string& text) {
  each_row(families, [&](const auto& family) {
    GuardedText bytes(text), front(text, End::terminated, Edge::front);
    std::string plain = text + '\0', string = text;
    const std::size_t capacity = string.capacity();
    family.plain(&plain[0]);
    family.bytes(bytes.data());
    family.bytes(front.data());
    family.string(string);
    ASSERT_EQ(std::string(bytes.data(), bytes.size()), plain) << '\'' << text << '\'';
    ASSERT_EQ(std::string(front.data(), front.size()), plain) << '\'' << text << '\'';
    ASSERT_EQ(string, plain.c_str());
    ASSERT_EQ(string.capacity(), capacity);
  });
}

}  // namespace

TEST(BlankTrim, EveryShortText) {
  each_text(" a\t", 7, expect_trims);
}

TEST(BlankTrim, LongRuns) {
  for (std::size_t size = 1; size < 200; size += 3) {
    const std::string blanks(size, ' ');
    expect_trims(blanks);
    expect_trims(blanks + "\xA0" + blanks + ' ' + blanks);
    expect_trims(blanks + "a b" + blanks + 'c');
  }
}

TEST(BlankTrim, ZeroBytesInAString) {
  std::string text("  \0 ", 4);
  Orbane::Zeph_Trimed(text);
  EXPECT_EQ(text, std::string("\0", 1));
  text.assign("ab \0", 4);
  Orbane::Zeph_Del_TailSpace(text);
  EXPECT_EQ(text, std::string("ab \0", 4)) << "a zero byte is no blank";
}
