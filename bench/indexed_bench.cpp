// From an index to a word and from a value to its index, against the walks that a user writes.
#include <strings.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

// "item0,item1, ..."
std::string list_of(std::size_t items, char separator) {
  std::string text;
  for (std::size_t i = 0; i < items; ++i) {
    if (i > 0) text += separator;
    text += "item" + std::to_string(i);
  }
  return text;
}

// ---- the peers ----

[[gnu::noinline]] int index_by_strsep(const char* text, const char* separator, const char* value,
                                      int (*compare)(const char*, const char*)) {
  std::string copy = text;
  char* rest = copy.data();
  int index = 0;
  for (char* item; (item = strsep(&rest, separator)) != nullptr; ++index) {
    if (compare(item, value) == 0) return index;
  }
  return -1;
}

// The blanks in front of an item are one separator.
template <bool fold>
[[gnu::noinline]] int index_by_walk(const char* text, char separator, const char* value) {
  const std::size_t value_size = std::strlen(value);
  for (int index = 0;; ++index) {
    const char* const end = strchrnul(text, separator);
    const bool fits = static_cast<std::size_t>(end - text) == value_size;
    if (fits &&
        (fold ? strncasecmp(text, value, value_size) : std::memcmp(text, value, value_size)) == 0) {
      return index;
    }
    if (*end == '\0') return -1;
    text = end + (separator == ' ' ? std::strspn(end, " ") : 1);
  }
}

// `may_miss`: the word may not be there, which gives the empty text.
template <bool may_miss>
[[gnu::noinline]] int word_by_walk(const char* text, char separator, int index, char* out,
                                   std::size_t limit) {
  const char separators[] = {separator, '\0'};
  for (const char* end; *(end = strchrnul(text, separator)) != '\0' && index > 0; --index) {
    text = end + 1 + std::strspn(end + 1, separators);
  }
  if (may_miss && index > 0) return *out = '\0';
  const auto found = static_cast<std::size_t>(strchrnul(text, separator) - text);
  const std::size_t size = std::min(found, limit);
  std::memcpy(out, text, size);
  out[size] = '\0';
  return 0;
}

// ---- the rows ----

struct Function {
  const char* name;
  char separator;
  bool fold;
  int (*index)(const char* list, const char* value);
};

const Function functions[] = {
    {"Zeph_Seperate_Get_Index", ' ', false,
     [](const char* list, const char* value) {
       return Orbane::Zeph_Seperate_Get_Index(list, value);
     }},
    {"Zeph_Seperate_Get_Index_L", ' ', true,
     [](const char* list, const char* value) {
       return Orbane::Zeph_Seperate_Get_Index_L(list, value);
     }},
    {"Zeph_Seperate_Char_Get_Index", ',', false,
     [](const char* list, const char* value) {
       return Orbane::Zeph_Seperate_Char_Get_Index(list, ',', value);
     }},
    {"Zeph_Seperate_Char_Get_Index_L", ',', true,
     [](const char* list, const char* value) {
       return Orbane::Zeph_Seperate_Char_Get_Index_L(list, ',', value);
     }},
};

void add_index_row(const Function& f, std::size_t items, std::string sought,
                   const std::string& place) {
  const std::string list = list_of(items, f.separator);
  if (f.fold) sought.front() = 'I';
  Places& places = keep(Places());
  const char* const text = places.text(list);
  const char* const value = places.text(sought);
  auto& added = row("indexed", f.name, std::to_string(items) + " items, " + place, list.size());
  added.zeph([index = f.index, text, value] { return index(text, value); })
      .reason("the promised work buffers have the list's length, which is measured first of all")
      .requests([size = list.size() + 1] { return heap_requests(2, size); });
  added.peer("strchrnul walk", [separator = f.separator, fold = f.fold, text, value] {
    return fold ? index_by_walk<true>(text, separator, value)
                : index_by_walk<false>(text, separator, value);
  });
  added.peer("strsep loop", [separator = f.separator, fold = f.fold, text, value] {
    return index_by_strsep(text, separator == ' ' ? " " : ",", value,
                           fold ? strcasecmp : std::strcmp);
  });
}

void add_word_row(std::size_t items, int index, const std::string& place, char separator) {
  const std::string list = list_of(items, separator);
  constexpr int limit = 15;
  Places& places = keep(Places());
  const char* const text = places.text(list);
  char* const word = places.room(limit + 1);
  const bool blanks = separator == ' ';
  auto& added =
      row("indexed", blanks ? "Zeph_Seperate_With_Index" : "Zeph_Seperate_Char_With_Index",
          std::to_string(items) + " items, " + place, list.size());
  added.outputs([word] { return take(word); });
  if (blanks) {
    added.zeph([text, word, index] {
      return Orbane::Zeph_Seperate_With_Index(text, word, index, limit), 0;
    });
  } else {
    added.zeph([text, word, index] {
      return Orbane::Zeph_Seperate_Char_With_Index(text, ',', word, index, limit), 0;
    });
  }
  if (index < static_cast<int>(items)) {
    added.peer("strchrnul walk", [text, separator, word, index] {
      return word_by_walk<false>(text, separator, index, word, limit);
    });
  } else {
    added.peer("strchrnul walk", [text, separator, word, index] {
      return word_by_walk<true>(text, separator, index, word, limit);
    });
  }
}

}  // namespace

void register_indexed_rows() {
  for (const std::size_t items : {10U, 100U, 10000U}) {
    const std::string last = "item" + std::to_string(items - 1);
    for (const Function& f : functions) {
      add_index_row(f, items, "item0", "first");
      add_index_row(f, items, last, "last");
      add_index_row(f, items, "item", "none");
    }
    for (const char separator : {' ', ','}) {
      const int count = static_cast<int>(items);
      add_word_row(items, 0, "first", separator);
      add_word_row(items, count - 1, "last", separator);
      add_word_row(items, count, "none", separator);
    }
  }
}

}  // namespace zeph_bench
