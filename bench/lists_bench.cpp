// Lists, fields by index and fields from the right against what a user would write instead.
#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/str_join.h>
#include <absl/strings/str_split.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/split.hpp>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

using List = std::vector<std::string>;

std::string list_of(std::size_t items) {
  std::string text;
  for (std::size_t i = 0; i < items; ++i) text += (i ? "," : "") + ("item" + std::to_string(i));
  return text;
}

[[gnu::noinline]] List split_by_getline(const std::string& text) {
  List list;
  std::istringstream stream(text);
  for (std::string item; std::getline(stream, item, ',');) {
    if (!item.empty()) list.push_back(item);
  }
  return list;
}

[[gnu::noinline]] List split_by_find(const std::string& text) {
  List list;
  std::size_t from = 0;
  for (std::size_t to; (to = text.find(',', from)) != std::string::npos; from = to + 1) {
    if (to > from) list.push_back(text.substr(from, to - from));
  }
  if (from < text.size()) list.push_back(text.substr(from));
  return list;
}

[[gnu::noinline]] std::string join_by_append(const List& list) {
  std::string text;
  for (const std::string& item : list) {
    if (!text.empty()) text += ',';
    text += item;
  }
  return text;
}

[[gnu::noinline]] int index_by_strtok(const char* text, const char* value) {
  std::string copy = text;
  char* rest = copy.data();
  int index = 0;
  for (char* item; (item = strsep(&rest, ",")) != nullptr; ++index) {
    if (std::strcmp(item, value) == 0) return index;
  }
  return -1;
}

[[gnu::noinline]] int index_by_walk(const char* text, const char* value) {
  const std::size_t value_size = std::strlen(value);
  for (int index = 0;; ++index) {
    const char* const end = strchrnul(text, ',');
    const auto size = static_cast<std::size_t>(end - text);
    if (size == value_size && std::memcmp(text, value, size) == 0) return index;
    if (*end == '\0') return -1;
    text = end + 1;
  }
}

[[gnu::noinline]] void cut_last_word(const char* text, char* field, char* head) {
  const char* const at = std::strrchr(text, ' ');
  const auto size = static_cast<std::size_t>(at - text);
  std::strcpy(field, at + 1);
  std::memcpy(head, text, size);
  head[size] = '\0';
}

[[gnu::noinline]] int word_by_walk(const char* text, int index, char* out, std::size_t limit) {
  for (const char* end; *(end = strchrnul(text, ',')) != '\0' && index > 0; --index) {
    text = end + 1 + std::strspn(end + 1, ",");
  }
  const std::size_t size = std::min<std::size_t>(strcspn(text, ","), limit);
  std::memcpy(out, text, size);
  out[size] = '\0';
  return 0;
}

void add_index_row(const std::string& list, const std::string& sought, const std::string& input) {
  Places& places = keep(Places());
  const char* const text = places.text(list);
  const char* const value = places.text(sought);
  row("lists", "Zeph_Seperate_Char_Get_Index", input, list.size())
      .reason("it searches first, in vain where the value turns up inside of other items")
      .zeph([text, value] { return Orbane::Zeph_Seperate_Char_Get_Index(text, ',', value); })
      .peer("strsep loop", [text, value] { return index_by_strtok(text, value); })
      .peer("strchrnul walk", [text, value] { return index_by_walk(text, value); })
      .requests([size = list.size() + 1] { return heap_requests(2, size); });
}

void add_word_row(const std::string& list, const std::string& last, int index,
                  const std::string& input) {
  Places& places = keep(Places());
  const char* const text = places.text(list);
  char* const word = places.room(last.size() + 1);
  const auto limit = static_cast<int>(last.size());
  row("lists", "Zeph_Seperate_Char_With_Index", input, list.size())
      .outputs([word] { return std::string(word) + std::exchange(word[0], '#'); })
      .zeph([text, word, index, limit] {
        return Orbane::Zeph_Seperate_Char_With_Index(text, ',', word, index, limit), 0;
      })
      .peer("strchrnul walk", [text, word, index, limit] {
        return word_by_walk(text, index, word, static_cast<std::size_t>(limit));
      });
}

void add_list_rows(std::size_t items) {
  const std::string& text = keep(list_of(items));
  const List& list = keep(split_by_find(text));
  const std::string input = std::to_string(items) + " items";
  auto& split = row("lists", "Zeph_Split", input, text.size());
  auto& join = row("lists", "Zeph_Join", input, text.size());
  split
      .zeph([&] {
        List items;
        Orbane::Zeph_Split(text, ',', items);
        return items;
      })
      .peer("getline", [&] { return split_by_getline(text); })
      .peer("find + substr", [&] { return split_by_find(text); });
  join.zeph([&] { return Orbane::Zeph_Join(list, ','); }).peer("append loop", [&] {
    return join_by_append(list);
  });
#if ZEPH_BENCH_HAS_ABSEIL
  split.peer("absl::StrSplit", [&] { return List(absl::StrSplit(text, ',', absl::SkipEmpty())); });
  join.peer("absl::StrJoin", [&] { return absl::StrJoin(list, ","); });
#else
  split.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  split.peer("boost::split", [&] {
    List items;
    boost::split(
        items, text, [](char byte) { return byte == ','; }, boost::token_compress_on);
    return items;
  });
  join.peer("boost::join", [&] { return boost::join(list, ","); });
#else
  split.missing_peer("Boost");
#endif
  add_index_row(text, list.back(), input + ", last");
  add_index_row(text, "item", input + ", none");
  add_word_row(text, list.back(), static_cast<int>(items) - 1, input + ", last");
}

void add_reverse_row(std::size_t size) {
  Places& places = keep(Places());
  char* const text = places.text(std::string(size - 8, 'x') + " abc def");
  char* const field = places.room(size);
  char* const head = places.room(size);
  row("lists", "Zeph_Seperate_Reverse 2", size_text(size), size)
      .outputs([field, head] {
        const std::string answer = std::string(field) + '\n' + head;
        field[0] = head[0] = '#';
        return answer;
      })
      .zeph([text, field, head] { return Orbane::Zeph_Seperate_Reverse(text, field, head), 0; })
      .peer("strrchr + memcpy",
            [text, field, head] { return cut_last_word(text, field, head), 0; });
}

}  // namespace

void register_lists_rows() {
  for (const std::size_t items : {10U, 100U, 10000U}) add_list_rows(items);
  for (const std::size_t size : {16U, 64U, 4096U, 65536U}) add_reverse_row(size);
}

}  // namespace zeph_bench
