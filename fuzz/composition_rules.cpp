// Texts appended, printed and joined; fixed buffers.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <new>
#include <string>

#include "rules.h"
#include "support/guarded_buffer.h"
#include "support/stdout_capture.h"
#include "zeph.h"

using namespace Orbane;

namespace zeph_test {
namespace {

template <typename... Values>
std::string printed(const char* format, Values... values) {
  char text[1024];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

double any_real(Draw& draw) {
  const std::uint64_t image = draw.word();
  double value;
  std::memcpy(&value, &image, sizeof value);
  return draw.yes() ? value : draw.any_int() / 64.0;
}

template <typename Value>
void expect_appended(const std::string& text, Value value, const std::string& more) {
  const GuardedBuffer room(text.size() + more.size() + 1);
  room.data()[text.copy(room.data(), text.size())] = '\0';
  EXPECT_EQ(Zeph_Cat(room.data(), value), room.data());
  EXPECT_EQ(room.data(), text + more);
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
  const GuardedBuffer twice(2 * text.size() + 1);
  twice.data()[text.copy(twice.data(), text.size())] = '\0';
  const std::size_t from = draw.below(text.size() + 1);
  Zeph_Cat(twice.data(), twice.data() + from);
  EXPECT_EQ(twice.data(), text + text.substr(from));
}

void printed_to_size(Draw& draw) {
  const std::string text = draw.text(700), more = draw.piece(5);
  const char* const last = draw.below(20) == 0 ? nullptr : more.c_str();
  const int size = draw.yes() ? draw.any_int() : draw.between(0, 800);
  if (size < 0) {
    EXPECT_THROW(Zeph_Splicing(size, "%s", "x"), std::bad_alloc);
    EXPECT_EQ(Zeph_Splicing(9, "%%"), "%");
    return;
  }
  // The second format goes to the runtime, the first one does not.
  const char* const format = draw.yes() ? "%s-%d%s|%u%c%%%i" : "%s-%3d%s|%u%c%%%i";
  const auto number = static_cast<unsigned>(draw.any_int());
  const int byte = draw.byte();
  const auto print = [&](auto printer) {
    return printer(format, text.c_str(), size, last, number, byte, size);
  };
  const std::string whole = print([](auto... values) { return printed(values...); });
  EXPECT_EQ(print([size](auto... values) { return Zeph_Splicing(size, values...); }),
            whole.substr(0, static_cast<std::size_t>(std::max(size - 1, 0))));
}

// The first text in a buffer of `room` bytes, which holds the result.
std::string join_alarms(const std::vector<std::string>& texts, std::size_t room) {
  const GuardedBuffer first(room);
  first.data()[texts[0].copy(first.data(), texts[0].size())] = '\0';
  std::vector<const char*> more;
  for (std::size_t i = 1; i < texts.size(); ++i) more.push_back(texts[i].c_str());
  const auto call = [&](auto... indexes) {
    Zeph_Strcat_Alarm_Append_Text(first.data(), more[std::size_t(indexes)]...);
  };
  const std::function<void()> forms[] = {[&] { call(0); }, [&] { call(0, 1); },
                                         [&] { call(0, 1, 2); }, [&] { call(0, 1, 2, 3); },
                                         [&] { call(0, 1, 2, 3, 4); }};
  forms[more.size() - 1]();
  return first.data();
}

void joined_alarms(Draw& draw) {
  std::vector<std::string> texts;
  std::string first, second;
  for (std::size_t count = 2 + draw.below(5); texts.size() < count;) {
    std::string text = draw.text(draw.below(8) == 0 ? 600 : 30, "ab |");
    if (draw.yes()) text += "|" + draw.piece(draw.below(8) == 0 ? 600 : 9, "ab");
    const std::size_t half = text.find('|');
    first += (texts.empty() ? "" : " ") + text.substr(0, half);
    const std::string behind = half < text.size() ? text.substr(half + 1) : "";
    second += (texts.empty() ? "" : " ") + (behind.empty() ? text.substr(0, half) : behind);
    texts.push_back(text);
  }
  const std::string whole = (first + "|" + second).substr(0, 511);
  EXPECT_EQ(join_alarms(texts, std::max(texts[0].size(), whole.size()) + 1), whole);
}

void fixed_buffers(Draw& draw) {
  const std::string text = draw.text(100);
  const int integer = draw.any_int(), size = draw.between(-1, 140);
  const double real = any_real(draw);
  const auto expect_cut = [&](auto value, const std::string& whole) {
    const std::string cut = whole.substr(0, static_cast<std::size_t>(size - 1));
    const GuardedBuffer room(size < 0 ? whole.size() + 1 : static_cast<std::size_t>(size));
    EXPECT_TRUE(Zeph_Copy_Stack(room.data(), value, size));
    if (size == 0) return;
    EXPECT_EQ(room.data(), size < 0 ? whole : cut);
    EXPECT_TRUE(room.untouched(std::min(cut.size() + 1, room.size())));
  };
  expect_cut(GuardedText(text).data(), text);
  expect_cut(integer, printed("%d", integer));
  expect_cut(real, printed("%f", real));
  const GuardedBuffer block(text.size());
  EXPECT_EQ(Zeph_Set_Mem(block.data(), integer, static_cast<unsigned>(text.size())), block.data());
  EXPECT_EQ(std::string(block.data(), text.size()),
            std::string(text.size(), static_cast<char>(integer)));
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
  StdoutCapture capture;
  EXPECT_EQ(Zeph_Copy_Mem(target.data(), start, from.data(), count), fits);
  EXPECT_EQ(target.data(), fits ? std::string(text).replace(at, bytes.size(), bytes) : text);
  EXPECT_EQ(capture.text().empty(), fits);
  if (!inside) return;
  std::string own = text;  // the text over itself
  const std::size_t n = std::min(bytes.size(), text.size() - at);
  for (std::size_t i = 0; i < n; ++i) own[at + i] = own[i];
  Zeph_Copy_Mem(target.data(), 0, GuardedText(text).data(), -1);
  EXPECT_TRUE(Zeph_Copy_Mem(target.data(), start, target.data(), static_cast<int>(n)));
  EXPECT_EQ(target.data(), own);
}

}  // namespace

Rules composition_rules() {
  return {{"appended", appended},
          {"printed to a size", printed_to_size},
          {"joined alarms", joined_alarms},
          {"fixed buffers", fixed_buffers},
          {"overlays", overlays}};
}

}  // namespace zeph_test
