// Hexadecimal dumps and message names.
#include "number/number_harness.h"
#include "rules.h"

using namespace Orbane;

namespace zeph_test {
namespace {

std::string dumped(const char* format, const std::string& bytes) {
  std::string dump;
  for (const char byte : bytes) {
    dump += (dump.empty() ? "" : " ") + printed(format, static_cast<unsigned char>(byte));
  }
  return dump;
}

void dumps(Draw& draw) {
  std::string bytes =
      draw.yes() ? draw.bytes(200) : draw.text(200, draw.yes() ? "\xFF\xE4" : "\x0A\xA0");
  const std::string text = bytes.c_str();
  const GuardedText source(bytes, End::bare), ended(text);
  const auto count = static_cast<int>(bytes.size());
  char* block = nullptr;
  EXPECT_EQ(Zeph_To_Ascii(source.data(), count), dumped("%x", bytes));
  EXPECT_EQ(Zeph_To_Ascii(ended.data()), dumped("%x", text));
  EXPECT_EQ(Zeph_To_Ascii(source.data(), count, &block), block);
  EXPECT_EQ(block, dumped("%02X", bytes));
  char* const kept = block;
  EXPECT_EQ(Zeph_To_Ascii(ended.data(), &block), kept) << "a block with the room is kept";
  EXPECT_EQ(block, dumped("%02X", text));
  EXPECT_TRUE(text.empty() || block[3 * text.size()] == '\0') << "the room of the last blank";
  const int none = std::min(draw.any_int(), 0);
  EXPECT_EQ(Zeph_To_Ascii(source.data(), none), "");
  EXPECT_STREQ(Zeph_To_Ascii(source.data(), none, &block), "");
  Zeph_Release_Mem(&block);
}

// 'S', a number, 'F', a number, each of 0 to 255 by the grammar of integer texts.
bool is_name(const std::string& text, std::uint32_t& stream, std::uint32_t& function) {
  const std::size_t f = folded(text).find('f');
  if (text.empty() || lower(text[0]) != 's' || f == std::string::npos) return false;
  const std::string first = text.substr(1, f - 1), second = text.substr(f + 1);
  const Reading s = read_integer(first, true), n = read_integer(second, true);
  stream = s.word;
  function = n.word;
  return !first.empty() && !second.empty() && s.accepted && n.accepted && stream < 256 &&
         function < 256;
}

void message_names(Draw& draw) {
  const std::string digits = draw.yes() ? "0123456789" : "12-0xXsSfF ";
  std::string text = "S" + draw.text(5, digits);
  if (draw.yes()) text += "F" + draw.piece(5, digits);
  if (draw.below(8) == 0) text = draw.text(12);
  std::uint32_t s = 0, f = 0;
  const bool valid = is_name(text, s, f);
  unsigned char stream = 77, function = 78;
  EXPECT_EQ(Zeph_Check_SxxFxx(GuardedText(text).data(), &stream, &function), valid) << text;
  EXPECT_EQ(stream, valid ? s : 77u);
  EXPECT_EQ(function, valid ? f : 78u);
  EXPECT_EQ(Zeph_Check_SxxFxx(GuardedText(text).data(), nullptr, nullptr), valid);
}

}  // namespace

const Family dumps_family{"dumps", {dumps, message_names}};

}  // namespace zeph_test
