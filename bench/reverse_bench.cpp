// Fields from the right against the cuts that are written by hand.
#include <cstring>
#include <string>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Tail {
  std::string source;
  char separator;
  Places places;
  char* text;
  char* outs[5];

  Tail(std::string from, char between)
      : source(std::move(from)), separator(between), text(places.text(source)) {
    for (char*& out : outs) out = places.room(source.size() + 1);
  }

  std::string take_outs(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += take(outs[i]) + '\n';
    return all;
  }
};

// ---- the peers ----

const char* last_separator(const char* text, char separator, std::size_t size) {
  return static_cast<const char*>(memrchr(text, separator, size));
}

void put(char* out, const char* from, std::size_t size) {
  std::memcpy(out, from, size);
  out[size] = '\0';
}

// A missing separator: the head goes to the first output that is free.
template <std::size_t count>
[[gnu::noinline]] int cut_by_memrchr(const char* text, char separator, char* const (&outs)[5]) {
  std::size_t size = std::strlen(text), i = 0;
  for (; i + 1 < count; ++i) {
    const char* const at = last_separator(text, separator, size);
    if (!at) break;
    const auto place = static_cast<std::size_t>(at - text);
    put(outs[i], at + 1, size - place - 1);
    size = place;
    if (separator == ' ') {
      while (size > 0 && text[size - 1] == ' ') --size;
    }
  }
  put(outs[i], text, size);
  while (++i < count) outs[i][0] = '\0';
  return 0;
}

// For two outputs where the separator is there.
[[gnu::noinline]] int cut_by_strrchr(const char* text, char separator, char* field, char* head) {
  const char* const at = std::strrchr(text, separator);
  std::strcpy(field, at + 1);
  put(head, text, static_cast<std::size_t>(at - text));
  return 0;
}

// ---- the rows ----

template <std::size_t count, typename Cut>
int with_outs(char* const (&o)[5], Cut cut) {
  if constexpr (count == 2) cut(o[0], o[1]);
  if constexpr (count == 3) cut(o[0], o[1], o[2]);
  if constexpr (count == 4) cut(o[0], o[1], o[2], o[3]);
  if constexpr (count == 5) cut(o[0], o[1], o[2], o[3], o[4]);
  return 0;
}

template <std::size_t count>
Row& add_row(Tail& t, const std::string& input) {
  const bool blanks = t.separator == ' ';
  const std::string name = blanks ? "Zeph_Seperate_Reverse " : "Zeph_Seperate_Char_Reverse ";
  auto& added = row("reverse", name + std::to_string(count), input, t.source.size());
  added.outputs([&t] { return t.take_outs(count); });
  if (blanks) {
    added.zeph([&t] {
      return with_outs<count>(t.outs,
                              [&t](auto... o) { Orbane::Zeph_Seperate_Reverse(t.text, o...); });
    });
  } else {
    added.zeph([&t] {
      return with_outs<count>(t.outs, [&t](auto... o) {
        Orbane::Zeph_Seperate_Char_Reverse(t.text, t.separator, o...);
      });
    });
  }
  return added.peer("strlen, memrchr + memcpy",
                    [&t] { return cut_by_memrchr<count>(t.text, t.separator, t.outs); });
}

void add_two_row(Tail& t, const std::string& input) {
  add_row<2>(t, input).peer("strrchr + memcpy", [&t] {
    return cut_by_strrchr(t.text, t.separator, t.outs[0], t.outs[1]);
  });
}

void add_longer_rows(Tail& t, const std::string& input) {
  add_row<3>(t, input);
  add_row<4>(t, input);
  add_row<5>(t, input);
}

// Five fields, the last four of which are short.
std::string five_fields(std::size_t size, char separator) {
  const std::string tail = std::string("|12|0.75|mTorr|set");
  std::string text = std::string(size - tail.size(), 'x') + tail;
  for (char& byte : text) byte = byte == '|' ? separator : byte;
  return text;
}

}  // namespace

void register_reverse_rows() {
  for (const char separator : {' ', ','}) {
    const std::string short_text = separator == ' ' ? "xxxxxxxx abc def" : "xxxxxxxx,abc,def";
    Tail& short_tail = keep(Tail(short_text, separator));
    add_two_row(short_tail, "16 bytes");
    add_longer_rows(short_tail, "16 bytes");
    for (const std::size_t size : {32U, 64U, 4096U, 65536U, 1048576U}) {
      Tail& t = keep(Tail(five_fields(size, separator), separator));
      add_two_row(t, size_text(size));
      add_longer_rows(t, size_text(size));
    }
    for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
      Tail& t = keep(Tail(std::string(size, 'x'), separator));
      add_row<2>(t, size_text(size) + ", no separator");
      add_longer_rows(t, size_text(size) + ", no separator");
    }
  }
}

}  // namespace zeph_bench
