// Slices and what stands around a marker, by all forms of a function.
#ifndef ZEPH_TESTS_SEARCH_SEARCH_HARNESS_H
#define ZEPH_TESTS_SEARCH_SEARCH_HARNESS_H

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

// The text as its own output of `call`. "refused" stands for a false result, "thrown" for the
// exception; both leave it as it was.
template <typename Call>
std::string outcome(const std::string& text, Call call) {
  std::string out = text;
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

// A slice by position: of the byte text, the String, and by the String form with fewer questions.
inline void expect_slice(const std::string& text, int start, int count, const std::string& bytes,
                         const std::string& string, const std::string& loose) {
  SCOPED_TRACE(text + ' ' + std::to_string(start) + ' ' + std::to_string(count));
  const bool refused = bytes == "refused";
  const GuardedText in(text);
  const GuardedBuffer out(refused ? 1 : bytes.size() + 1);
  EXPECT_EQ(Orbane::Zeph_Get_SubString(in.data(), start, count, out.data()), !refused);
  if (refused) {
    EXPECT_TRUE(out.untouched());
  } else {
    EXPECT_EQ(std::string(out.data(), out.size()), bytes + '\0');
    EXPECT_TRUE(Orbane::Zeph_Get_SubString(in.data(), start, count, in.data()));
    EXPECT_EQ(in.data(), bytes) << "the text as its own output";
  }
  EXPECT_EQ(
      outcome(text, [&](std::string& s) { return Orbane::Zeph_Get_SubString(s, start, count, s); }),
      string);
  const auto cut_loosely = [&](std::string& s) {
    Orbane::Zeph_Ext_Str_From_Str(s, start, count, s);
    return true;
  };
  EXPECT_EQ(outcome(text, cut_loosely), loose);
}

inline void expect_between(const std::string& text, char open, char close,
                           const std::string& between) {
  EXPECT_EQ(
      outcome(text, [&](std::string& s) { return Orbane::Zeph_Get_SubString(s, open, close, s); }),
      between)
      << text;
}

inline void expect_name(const std::string& path, int size, const std::string& name) {
  const GuardedBuffer out(size > 0 ? static_cast<std::size_t>(size) + 1 : 1);
  Orbane::Zeph_Ext_Name_From_FullPath(out.data(), GuardedText(path).data(), size);
  EXPECT_EQ(out.data(), name) << path;
  EXPECT_TRUE(out.untouched(name.size() + 1));
}

// What stands on both sides of a marker, a text or a byte, by the forms that return it and those
// that write it over the text itself.
template <typename Marker>
void expect_sides(const std::string& text, const Marker& marker, const std::string& left,
                  const std::string& right) {
  EXPECT_EQ(Orbane::Zeph_Left(text, marker), left) << text << ' ' << marker;
  EXPECT_EQ(Orbane::Zeph_Right(text, marker), right) << text << ' ' << marker;
  std::string own = text;
  Orbane::Zeph_Left(own, marker, own);
  EXPECT_EQ(own, left);
  own = text;
  Orbane::Zeph_Right(own, marker, own);
  EXPECT_EQ(own, right);
}

inline void expect_around(const std::string& text, const std::string& marker,
                          const std::string& left, const std::string& right) {
  expect_sides(text, marker, left, right);
  if (marker.size() == 1) expect_sides(text, marker[0], left, right);
  std::string own = marker;
  Orbane::Zeph_Left(text, own, own);
  EXPECT_EQ(own, left) << "the marker as the output";
  own = marker;
  Orbane::Zeph_Right(text, own, own);
  EXPECT_EQ(own, right) << "the marker as the output";
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SEARCH_SEARCH_HARNESS_H
