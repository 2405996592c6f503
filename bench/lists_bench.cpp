// Lists against what a user would write instead.
#include <sstream>
#include <string>
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

[[gnu::noinline]] void join_to(std::string& text, const List& list) {
  text.clear();
  for (const std::string& item : list) {
    if (!text.empty()) text += ',';
    text += item;
  }
}

// The text is split, and what it splits into is joined.
void add_list_rows(std::string fixture, const std::string& input) {
  const std::string& text = keep(std::move(fixture));
  const List& list = keep(split_by_find(text));
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
  std::string& out = keep(std::string());
  row("lists", "Zeph_Join to a String", input, text.size())
      .outputs([&] { return std::exchange(out, ""); })
      .zeph([&] { return Orbane::Zeph_Join(list, ',', out), 0; })
      .peer("append loop", [&] { return join_to(out, list), 0; });
}

}  // namespace

void register_lists_rows() {
  for (const std::size_t items : {10U, 100U, 10000U}) {
    add_list_rows(list_of(items), std::to_string(items) + " items");
  }
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_list_rows(std::string(size, 'x'), size_text(size) + ", no separator");
  }
}

}  // namespace zeph_bench
