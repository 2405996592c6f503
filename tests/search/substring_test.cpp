#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <string>

#include "search/slices_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// "refused" stands for a false result, "thrown" for the exception.

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
  char own[] = "0123456789012345678901234567890123456789abcdef";
  EXPECT_TRUE(Orbane::Zeph_Get_SubString(own, 3, -1, own)) << "the text as its own output";
  EXPECT_STREQ(own, "3456789012345678901234567890123456789abcdef");
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
  each_row(delimited, [](const auto& row) {
    const auto cut = [&](std::string& s) {
      return Orbane::Zeph_Get_SubString(s, row.open, row.close, s);
    };
    EXPECT_EQ(outcome(row.text, cut), row.between);
  });
}

TEST(SubString, LastPathComponent) {
  each_row(paths, [](const auto& row) {
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
