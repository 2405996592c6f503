#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// "refused" stands for a false result, "thrown" for the exception.
const struct {
  const char* why;
  const char* text;
  int start, count;
  const char* bytes;   // Zeph_Get_SubString on the byte text
  const char* string;  // and on the String
  const char* loose;   // Zeph_Ext_Str_From_Str on the String
} slices[] = {
    {"inside", "hello", 1, 3, "ell", "ell", "ell"},
    {"cut at the end", "hello", 1, 99, "ello", "ello", "ello"},
    {"negative count", "hello", 1, INT_MIN, "ello", "ello", "ello"},
    {"count 0", "hello", 1, 0, "", "", ""},
    {"last byte", "hello", 4, 1, "o", "o", "o"},
    {"start at the end", "hello", 5, 1, "refused", "refused", ""},
    {"start behind the end", "hello", 6, 1, "refused", "refused", "thrown"},
    {"empty text", "", 0, 1, "refused", "refused", ""},
    {"negative start", "hello", -1, 1, "refused", "thrown", "thrown"},
};

template <typename Call>
std::string outcome(const std::string& text, Call call) {
  std::string out = text;  // the text as its own output
  try {
    if (call(out)) return out;
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "invalid string position");
    EXPECT_EQ(out, text);
    return "thrown";
  }
  EXPECT_EQ(out, text) << "untouched";
  return "refused";
}

}  // namespace

TEST(SubString, ByPosition) {
  each_row(slices, [](const auto& row) {
    const bool refused = std::string(row.bytes) == "refused";
    GuardedText text(row.text);
    GuardedBuffer out(refused ? 1 : std::string(row.bytes).size() + 1);
    EXPECT_EQ(Orbane::Zeph_Get_SubString(text.data(), row.start, row.count, out.data()), !refused);
    if (refused) {
      EXPECT_TRUE(out.untouched());
    } else {
      EXPECT_STREQ(out.data(), row.bytes);
    }
    const auto strict = [&](std::string& s) {
      return Orbane::Zeph_Get_SubString(s, row.start, row.count, s);
    };
    const auto loose = [&](std::string& s) {
      Orbane::Zeph_Ext_Str_From_Str(s, row.start, row.count, s);
      return true;
    };
    EXPECT_EQ(outcome(row.text, strict), row.string);
    EXPECT_EQ(outcome(row.text, loose), row.loose);
  });
  GuardedText bare("hello", End::bare);
  char piece[4];
  EXPECT_TRUE(Orbane::Zeph_Get_SubString(bare.data(), 2, 3, piece)) << "reads what it takes";
  EXPECT_STREQ(piece, "llo");
}

TEST(SubString, UncheckedSliceTakesWhatItIsTold) {
  GuardedText text(std::string("ab\0def", 6), End::bare);
  GuardedBuffer out(5);
  Orbane::Zeph_Ext_Str_From_Str(text.data(), 2, 4, out.data());
  EXPECT_EQ(std::string(out.data(), 5), std::string("\0def\0", 5));
  for (const int bad : {-1, INT_MIN}) {
    Orbane::Zeph_Ext_Str_From_Str(text.data(), bad, 2, out.data());
    Orbane::Zeph_Ext_Str_From_Str(text.data(), 0, bad, out.data() + 1);
    EXPECT_EQ(std::string(out.data(), 4), std::string("\0\0ef", 4)) << bad;
  }
}

TEST(SubString, BetweenDelimiters) {
  const struct {
    const char* why;
    const char* text;
    char open, close;
    const char* between;
  } rows[] = {
      {"plain", "a(b)c", '(', ')', "b"},
      {"neighbours", "()", '(', ')', "refused"},
      {"close in front of open", ")a(b)", '(', ')', "refused"},
      {"first of each", "(a(b))", '(', ')', "a(b"},
      {"no close", "(a", '(', ')', "refused"},
      {"no open", "a)", '(', ')', "refused"},
      {"one byte for both", "|a|", '|', '|', "refused"},
  };
  each_row(rows, [](const auto& row) {
    const auto cut = [&](std::string& s) {
      return Orbane::Zeph_Get_SubString(s, row.open, row.close, s);
    };
    EXPECT_EQ(outcome(row.text, cut), row.between);
  });
}

TEST(SubString, LastPathComponent) {
  const struct {
    const char* why;
    const char* path;
    int size;
    const char* name;
  } rows[] = {
      {"mixed separators", "c:\\dir/file.txt", 8, "file.txt"},
      {"backslash last", "c:/dir\\f", 8, "f"},
      {"no separator", "file", 8, "file"},
      {"nothing behind", "dir/", 8, ""},
      {"empty", "", 8, ""},
      {"cut", "dir/file.txt", 4, "file"},
      {"size 0", "dir/file.txt", 0, ""},
      {"negative size", "dir/file.txt", INT_MIN, ""},
      {"second half of a character",
       "\xC4\x5C"
       "b",
       8, "b"},
  };
  each_row(rows, [](const auto& row) {
    GuardedText path(row.path);
    GuardedText front(row.path, End::terminated, Edge::front);
    GuardedBuffer out(row.size > 0 ? static_cast<std::size_t>(row.size) + 1 : 1);
    for (const char* text : {path.data(), front.data()}) {
      Orbane::Zeph_Ext_Name_From_FullPath(out.data(), text, row.size);
      EXPECT_STREQ(out.data(), row.name);
    }
    EXPECT_TRUE(out.untouched(std::string(row.name).size() + 1));
  });
}
