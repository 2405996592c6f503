// Texts appended, printed and joined; fixed buffers.
#include <cmath>
#include <new>

#include "frame/buffers_table.h"
#include "rules.h"
#include "support/stdout_capture.h"

using namespace Orbane;

namespace zeph_test {
namespace {

double any_real(Draw& draw) {
  const double value = draw.real();
  return draw.yes() ? value : draw.any_int() / 64.0;
}

template <typename Value>
void expect_appended(const std::string& text, Value value, const std::string& more) {
  const auto append = [&](char* room) { EXPECT_EQ(Zeph_Cat(room, value), room); };
  EXPECT_EQ(left_in_room(text.size() + more.size() + 1, append, &text), text + more);
}

void appended(Draw& draw) {
  const std::string text = draw.text(100), more = draw.piece(100);
  const int integer = draw.any_int();
  const double real = any_real(draw);
  const auto small = static_cast<float>(integer) / 3;
  const auto byte = static_cast<char>(draw.byte());
  expect_appended(text, GuardedText(more).data(), more);
  expect_appended(text, byte, std::string(byte != '\0', byte));
  expect_appended(text, integer, printed("%d", integer));
  expect_appended(text, small, printed("%f", static_cast<double>(small)));
  expect_appended(text, real, printed("%f", real));
  const std::size_t from = draw.below(text.size() + 1);
  const auto append_own = [&](char* room) { Zeph_Cat(room, room + from); };
  EXPECT_EQ(left_in_room(2 * text.size() + 1, append_own, &text), text + text.substr(from));
}

// Nothing, or what nearly fills the room in which short results are gathered.
std::string front(Draw& draw) {
  return std::string(draw.below(4) == 0 ? 1990 + draw.below(60) : 0, '.');
}

void printed_to_size(Draw& draw) {
  const std::string text = front(draw) + draw.text(700), more = draw.piece(5);
  const char* const last = draw.below(20) == 0 ? nullptr : more.c_str();
  const int size =
      draw.yes() ? draw.any_int() : draw.between(0, static_cast<int>(text.size()) + 99);
  if (size < 0) {
    EXPECT_THROW(Zeph_Splicing(size, "%s", "x"), std::bad_alloc);
    EXPECT_EQ(Zeph_Splicing(9, "%%"), "%");
    return;
  }
  // The second format goes to the runtime, the first one does not.
  const char* const format = draw.yes() ? "%s-%d%s|%u%c%%%i" : "%s-%3d%s|%u%c%%%i";
  const auto number = static_cast<unsigned>(draw.any_int());
  const int byte = draw.byte();
  const std::string whole = printed(format, text.c_str(), size, last, number, byte, size);
  EXPECT_EQ(Zeph_Splicing(size, format, text.c_str(), size, last, number, byte, size),
            whole.substr(0, static_cast<std::size_t>(std::max(size - 1, 0))));
}

// '%', flags, a width, a precision and one of the kinds; what a real number may take.
std::string directive(Draw& draw, const std::string& flags, const std::string& kinds) {
  std::string text = "%" + draw.piece(2, flags);
  if (draw.yes()) text += std::to_string(1 + draw.below(draw.yes() ? 12 : 120));
  if (draw.below(3) == 0) {
    text += "." + (draw.yes() ? std::to_string(draw.below(12)) : "");
  }
  return text + kinds[draw.below(kinds.size())];
}

void printed_directives(Draw& draw) {
  const std::string text = draw.text(40, "ab");
  const int number = draw.any_int(), byte = draw.byte();
  const double real = draw.below(16) == 0 ? HUGE_VAL : any_real(draw);
  const std::string before = front(draw);
  const int size = static_cast<int>(before.size()) + draw.between(2, 99);
  const std::string format =
      before + directive(draw, "-", "s") + draw.piece(3, "ab") +
      directive(draw, draw.yes() ? "-0" : "-0 +", "d") + "%%" +
      directive(draw, "-0", draw.yes() ? "uxX" : "o") + directive(draw, "-0", "c") +
      directive(draw, "-0", draw.below(8) == 0 ? "e" : "f") + directive(draw, "-0", "s");
  const auto print = [&](auto printer, auto... room) {
    return printer(room..., GuardedText(format).data(), text.c_str(), number, number, byte, real,
                   text.c_str());
  };
  const std::string whole = print([](auto... values) { return printed(values...); });
  const auto splice = [](auto... values) { return Zeph_Splicing(values...); };
  EXPECT_EQ(print(splice, 4096), whole) << format;
  EXPECT_EQ(print(splice, size), whole.substr(0, static_cast<std::size_t>(size - 1))) << format;
}

// The first text lies in a room that holds the result.
void joined_alarms(Draw& draw) {
  const char* const alphabet = draw.yes() ? "ab |" : "ab ";
  std::vector<std::string> texts;
  std::string first, second;
  for (std::size_t count = 2 + draw.below(5); texts.size() < count;) {
    std::string text = draw.text(draw.below(8) == 0 ? 600 : 30, alphabet);
    if (draw.yes()) text += "|" + draw.piece(draw.below(8) == 0 ? 600 : 9, "ab");
    const std::size_t half = text.find('|');
    first += (texts.empty() ? "" : " ") + text.substr(0, half);
    const std::string behind = half < text.size() ? text.substr(half + 1) : "";
    second += (texts.empty() ? "" : " ") + (behind.empty() ? text.substr(0, half) : behind);
    texts.push_back(text);
  }
  const std::string whole = (first + "|" + second).substr(0, 511);
  std::vector<char*> items;
  for (std::string& text : texts) items.push_back(text.data());
  const auto join = [&](char* room) {
    items[0] = room;
    with_first<6>(items.size(), items, [](auto... t) { Zeph_Strcat_Alarm_Append_Text(t...); });
  };
  EXPECT_EQ(left_in_room(std::max(texts[0].size(), whole.size()) + 1, join, &texts[0]), whole);
}

void fixed_buffers(Draw& draw) {
  const std::string text = draw.text(100);
  const int integer = draw.any_int(), size = draw.between(-1, 140);
  const double real = any_real(draw);
  const auto expect_cut = [&](auto value, const std::string& whole) {
    const std::string cut = size < 0 ? whole : whole.substr(0, static_cast<std::size_t>(size - 1));
    const auto copy = [&](char* room) { EXPECT_TRUE(Zeph_Copy_Stack(room, value, size)); };
    EXPECT_EQ(left_in_room(size < 0 ? whole.size() + 1 : static_cast<std::size_t>(size), copy),
              size == 0 ? "" : cut);
  };
  expect_cut(GuardedText(text).data(), text);
  expect_cut(integer, printed("%d", integer));
  expect_cut(real, printed("%f", real));
  const GuardedBuffer block(text.size());
  const auto count = static_cast<unsigned>(text.size());
  for (const auto fill : {integer, ~integer}) {
    EXPECT_EQ(fill == integer ? Zeph_Set_Mem(block.data(), fill, count)
                              : exported(Zeph_Set_Mem)(block.data(), fill, count),
              block.data());
    EXPECT_EQ(block.bytes(), std::string(text.size(), static_cast<char>(fill)));
  }
}

// Bytes written inside a text, one by one in rising order.
void overlays(Draw& draw) {
  const std::string text = draw.text(60), source = draw.piece(30);
  const int start = draw.any_int(), count = draw.any_int();
  const std::string bytes = source.substr(0, static_cast<std::size_t>(count));
  const auto at = static_cast<std::size_t>(start);
  const bool inside = at < text.size(), fits = inside && bytes.size() <= text.size() - at;
  const bool whole = bytes.size() == source.size() && static_cast<int>(bytes.size()) != count;
  const GuardedText target(text), from(bytes, whole ? End::terminated : End::bare);
  EXPECT_EQ(
      stdout_of([&] { EXPECT_EQ(Zeph_Copy_Mem(target.data(), start, from.data(), count), fits); }),
      fits ? "" : banner(inside ? too_far : bad_start));
  EXPECT_EQ(target.data(), fits ? std::string(text).replace(at, bytes.size(), bytes) : text);
  if (!inside) return;
  std::string own = text;  // the text over itself
  const std::size_t n = std::min(bytes.size(), text.size() - at);
  for (std::size_t i = 0; i < n; ++i) own[at + i] = own[i];
  Zeph_Copy_Mem(target.data(), 0, GuardedText(text).data(), -1);
  EXPECT_TRUE(Zeph_Copy_Mem(target.data(), start, target.data(), static_cast<int>(n)));
  EXPECT_EQ(target.data(), own);
}

}  // namespace

const Family composition_family{
    "composition",
    {appended, printed_to_size, printed_directives, joined_alarms, fixed_buffers, overlays}};

}  // namespace zeph_test
