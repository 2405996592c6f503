// Fields from the left against the cuts that are written by hand. Each text has five fields, so
// that the last field of a smaller count holds separators.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/str_split.h>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Cut {
  std::string text;
  char separator;
  int limit;
  Places places;
  const char* bytes;  // the text as a byte text
  char* rooms[5];
  char* copy;  // for strtok_r, which writes into its text
  std::string strings[5];

  Cut(std::string from, char between, int most)
      : text(std::move(from)), separator(between), limit(most), bytes(places.text(text)) {
    for (char*& room : rooms) room = places.room(static_cast<std::size_t>(most) + 1);
    copy = places.room(text.size() + 1);
  }

  // The outputs in front of `count`, one a line; they are spoiled.
  std::string take_rooms(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
      all += std::string(rooms[i]) + '\n';
      std::fill(rooms[i], rooms[i] + limit, '#');
    }
    return all;
  }
  std::string take_strings(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
      all += strings[i] + '\n';
      strings[i] = "#";
    }
    return all;
  }
};

// ---- the peers ----

const char* cut_field(char* out, const char* from, const char* end, std::size_t limit) {
  const std::size_t size = std::min(static_cast<std::size_t>(end - from), limit);
  std::memcpy(out, from, size);
  out[size] = '\0';
  return *end == '\0' ? end : end + 1;
}

// The cut that a careful user writes once and calls from everywhere.
template <std::size_t count>
[[gnu::noinline]] int cut_by_strchrnul(const char* text, char separator, char* const (&outs)[count],
                                       std::size_t limit) {
  for (std::size_t i = 0; i + 1 < count; ++i) {
    text = cut_field(outs[i], text, strchrnul(text, separator), limit);
  }
  cut_field(outs[count - 1], text, text + std::strlen(text), limit);
  return 0;
}

template <std::size_t count>
[[gnu::noinline]] int cut_words_by_strchrnul(const char* text, char* const (&outs)[count],
                                             std::size_t limit) {
  for (std::size_t i = 0; i + 1 < count; ++i) {
    text = cut_field(outs[i], text, strchrnul(text, ' '), limit);
    text += std::strspn(text, " ");
  }
  cut_field(outs[count - 1], text, text + std::strlen(text), limit);
  return 0;
}

template <std::size_t count>
[[gnu::noinline]] int cut_by_strtok(Cut& c, char* const (&outs)[count], std::size_t limit) {
  const char separators[] = {c.separator, '\0'};
  std::memcpy(c.copy, c.bytes, c.text.size() + 1);
  char* rest = c.copy;
  for (std::size_t i = 0; i < count; ++i) {
    const char* const field = strtok_r(nullptr, i + 1 < count ? separators : "", &rest);
    const char* const from = field ? field : "";
    cut_field(outs[i], from, from + std::strlen(from), limit);
  }
  return 0;
}

template <std::size_t count>
[[gnu::noinline]] int cut_by_find(const std::string& text, char separator, std::string* outs) {
  std::size_t from = 0;
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const std::size_t end = std::min(text.find(separator, from), text.size());
    outs[i].assign(text, from, end - from);
    from = std::min(end + 1, text.size());
  }
  outs[count - 1].assign(text, from, std::string::npos);
  return 0;
}

template <std::size_t count>
[[gnu::noinline]] int cut_by_substr(const std::string& text, char separator, std::string* outs) {
  std::size_t from = 0;
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const std::size_t end = std::min(text.find(separator, from), text.size());
    outs[i] = text.substr(from, end - from);
    from = std::min(end + 1, text.size());
  }
  outs[count - 1] = text.substr(from);
  return 0;
}

template <std::size_t count>
[[gnu::noinline]] int cut_by_getline(const std::string& text, char separator, std::string* outs) {
  std::istringstream stream(text);
  for (std::size_t i = 0; i < count; ++i) {
    if (!std::getline(stream, outs[i], i + 1 < count ? separator : '\0')) outs[i].clear();
  }
  return 0;
}

// For a limit below the fields: what a field has above it is dropped.
template <std::size_t count>
[[gnu::noinline]] int cut_by_find_within(const Cut& c, std::string* outs) {
  const auto limit = static_cast<std::size_t>(c.limit);
  std::size_t from = 0;
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const std::size_t end = std::min(c.text.find(c.separator, from), c.text.size());
    outs[i].assign(c.text, from, std::min(end - from, limit));
    from = std::min(end + 1, c.text.size());
  }
  outs[count - 1].assign(c.text, from, limit);
  return 0;
}

// ---- the rows ----

// Calls `use` with the first `count` outputs as separate arguments.
template <std::size_t count, typename Outputs, typename Use>
int with_outputs(Outputs& outs, Use use) {
  if constexpr (count == 2) use(outs[0], outs[1]);
  if constexpr (count == 3) use(outs[0], outs[1], outs[2]);
  if constexpr (count == 4) use(outs[0], outs[1], outs[2], outs[3]);
  if constexpr (count == 5) use(outs[0], outs[1], outs[2], outs[3], outs[4]);
  return 0;
}

template <std::size_t count>
struct Outs {
  char* at[count];
  explicit Outs(Cut& c) {
    for (std::size_t i = 0; i < count; ++i) at[i] = c.rooms[i];
  }
};

template <std::size_t count>
void add_byte_rows(Cut& c, const std::string& input) {
  const char* const text = c.bytes;
  const auto limit = static_cast<std::size_t>(c.limit);
  const Outs<count> outs(c);
  const std::string number = std::to_string(count);
  const bool words = c.separator == ' ';
  const auto read = [&c] { return c.take_rooms(count); };
  const auto strtok_cut = [&c, outs, limit] { return cut_by_strtok<count>(c, outs.at, limit); };
  if (words) {
    row("fields", "Zeph_Seperate " + number, input, c.text.size())
        .reason("nothing is read behind the limit: each field takes two services, not one")
        .outputs(read)
        .zeph([text, outs, &c] {
          return with_outputs<count>(
              outs.at, [&](auto... o) { Orbane::Zeph_Seperate(text, o..., c.limit); });
        })
        .peer("strchrnul + memcpy",
              [text, outs, limit] { return cut_words_by_strchrnul<count>(text, outs.at, limit); })
        .peer("copy + strtok_r", strtok_cut);
  } else {
    row("fields", "Zeph_Seperate_Char " + number, input, c.text.size())
        .reason("the same services on long fields, and a call into the shared object")
        .outputs(read)
        .zeph([text, outs, &c] {
          return with_outputs<count>(outs.at, [&](auto... o) {
            Orbane::Zeph_Seperate_Char(text, c.separator, o..., c.limit);
          });
        })
        .peer("strchrnul + memcpy",
              [text, outs, limit, &c] {
                return cut_by_strchrnul<count>(text, c.separator, outs.at, limit);
              })
        .peer("copy + strtok_r", strtok_cut);
  }
}

// Without the peers.
template <std::size_t count>
Row& add_string_row(Cut& c, const std::string& input) {
  auto& strings = row("fields",
                      std::string(c.separator == ' ' ? "Zeph_Seperate" : "Zeph_Seperate_Char") +
                          " String " + std::to_string(count),
                      input, c.text.size());
  const bool long_text = c.text.size() >= std::size_t{1} << 20;
  strings.reason(
      long_text ? "the promised work buffers, zeroed, push so long a text out of the cache"
                : "a String ends at its first zero byte, which is looked for; find knows the size");
  return strings.outputs([&c] { return c.take_strings(count); }).zeph([&c] {
    return with_outputs<count>(c.strings, [&](auto&... o) {
      if (c.separator == ' ') {
        Orbane::Zeph_Seperate(c.text, o..., c.limit);
      } else {
        Orbane::Zeph_Seperate_Char(c.text, c.separator, o..., c.limit);
      }
    });
  });
}

template <std::size_t count>
void add_string_rows(Cut& c, const std::string& input) {
  auto& strings = add_string_row<count>(c, input);
  strings.peer("find + assign", [&c] { return cut_by_find<count>(c.text, c.separator, c.strings); })
      .peer("find + substr", [&c] { return cut_by_substr<count>(c.text, c.separator, c.strings); })
      .peer("getline", [&c] { return cut_by_getline<count>(c.text, c.separator, c.strings); })
      .requests([&c] { return heap_requests(count, static_cast<std::size_t>(c.limit) + 1); });
#if ZEPH_BENCH_HAS_ABSEIL
  if (c.separator == ' ') return;  // words have no peer there that skips runs in the middle alone
  strings.peer("absl::StrSplit", [&c] {
    std::size_t i = 0;
    for (const absl::string_view field :
         absl::StrSplit(c.text, absl::MaxSplits(c.separator, count - 1))) {
      c.strings[i++].assign(field.data(), field.size());
    }
    while (i < count) c.strings[i++].clear();
    return 0;
  });
#else
  strings.missing_peer("abseil");
#endif
}

// Five fields of the given lengths.
std::string make_text(const std::vector<std::size_t>& sizes, char separator) {
  std::string text;
  for (const std::size_t size : sizes) {
    if (!text.empty()) text += separator;
    for (std::size_t i = 0; i < size; ++i) text += "Pressure:0.75"[i % 13];
  }
  return text;
}

std::string equal_fields(std::size_t size, char separator) {
  const std::size_t field = (size - 4) / 5;
  return make_text({field, field, field, field, size - 4 - 4 * field}, separator);
}

template <std::size_t... counts>
void add_rows_of(const std::string& text, const std::string& input, int limit) {
  for (const char separator : {',', ' '}) {
    std::string cut_at = text;
    std::replace(cut_at.begin(), cut_at.end(), '|', separator);
    Cut& c = keep(Cut(cut_at, separator, limit));
    (add_byte_rows<counts>(c, input), ...);
    (add_string_rows<counts>(c, input), ...);
  }
}

void add_rows(const std::string& text, const std::string& input, std::size_t limit) {
  add_rows_of<2, 3, 4, 5>(text, input, static_cast<int>(limit));
}

template <std::size_t... counts>
void add_rows_within(char separator, int limit, const std::string& input) {
  Cut& c = keep(Cut(equal_fields(64, separator), separator, limit));
  (add_byte_rows<counts>(c, input), ...);
  (add_string_row<counts>(c, input)
       .peer("find + assign", [&c] { return cut_by_find_within<counts>(c, c.strings); })
       .requests([limit] { return heap_requests(counts, static_cast<std::size_t>(limit) + 1); }),
   ...);
}

}  // namespace

void register_fields_rows() {
  const auto text = make_text;
  add_rows(text({2, 3, 1, 3, 3}, '|'), "16 bytes", 63);  // five fields take 9 bytes and more
  add_rows(text({6, 4, 6, 5, 7}, '|'), "32 bytes", 63);
  add_rows(text({19, 6, 8, 12, 15}, '|'), "64 bytes", 255);
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_rows(text({size}, '|'), size_text(size) + ", no separator",
             std::max<std::size_t>(size, 255));
  }
  // More than two words are left out: a full middle field ends the whole cut there, which no peer
  // does.
  add_rows_within<2, 3, 4, 5>(',', 8, "64 bytes, limit 8");
  add_rows_within<2>(' ', 8, "64 bytes, limit 8");
  for (const std::size_t size : {4096U, 65536U, 1048576U}) {
    const std::string name = size_text(size);
    add_rows(text({40, 60, 80, 100, size - 284}, '|'), name + ", long rest", size);
    add_rows(equal_fields(size, '|'), name + ", long fields", size);
  }
}

}  // namespace zeph_bench
