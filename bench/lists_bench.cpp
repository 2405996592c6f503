// Lists, fields by index and fields from the right against what a user would write instead.
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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

List split_by_getline(const std::string& text) {
  List list;
  std::istringstream stream(text);
  for (std::string item; std::getline(stream, item, ',');) {
    if (!item.empty()) list.push_back(item);
  }
  return list;
}

List split_by_find(const std::string& text) {
  List list;
  std::size_t from = 0;
  for (std::size_t to; (to = text.find(',', from)) != std::string::npos; from = to + 1) {
    if (to > from) list.push_back(text.substr(from, to - from));
  }
  if (from < text.size()) list.push_back(text.substr(from));
  return list;
}

std::string join_by_append(const List& list) {
  std::string text;
  for (const std::string& item : list) {
    if (!text.empty()) text += ',';
    text += item;
  }
  return text;
}

int index_by_strtok(const std::string& text, const char* value) {
  std::string copy = text;
  char* rest = copy.data();
  int index = 0;
  for (char* item; (item = strsep(&rest, ",")) != nullptr; ++index) {
    if (std::strcmp(item, value) == 0) return index;
  }
  return -1;
}

void add_list_rows(std::size_t items) {
  const std::string& text = keep(list_of(items));
  const List& list = keep(split_by_find(text));
  const std::string& last = keep(std::string(list.back()));
  const std::string input = std::to_string(items) + " items";
  row("lists", "Zeph_Split", input, text.size())
      .zeph([&] {
        List split;
        Orbane::Zeph_Split(text, ',', split);
        return split;
      })
      .peer("getline", [&] { return split_by_getline(text); })
      .peer("find + substr", [&] { return split_by_find(text); });
  row("lists", "Zeph_Join", input, text.size())
      .zeph([&] { return Orbane::Zeph_Join(list, ','); })
      .peer("append loop", [&] { return join_by_append(list); });
  row("lists", "Zeph_Seperate_Char_Get_Index", input + ", last", text.size())
      .zeph([&] { return Orbane::Zeph_Seperate_Char_Get_Index(text.c_str(), ',', last.c_str()); })
      .peer("strsep loop", [&] { return index_by_strtok(text, last.c_str()); });
}

void add_reverse_row(std::size_t size) {
  const std::string& text = keep(std::string(size - 8, 'x') + " abc def");
  std::string& copy = keep(std::string(text));
  std::string& field = keep(std::string(size, '\0'));
  std::string& head = keep(std::string(size, '\0'));
  row("lists", "Zeph_Seperate_Reverse 2", std::to_string(size) + " bytes", size)
      .zeph([&] {
        Orbane::Zeph_Seperate_Reverse(copy.data(), field.data(), head.data());
        return std::strlen(field.c_str()) + std::strlen(head.c_str());
      })
      .peer("strrchr + memcpy", [&] {
        const char* const at = std::strrchr(text.c_str(), ' ');
        std::strcpy(field.data(), at + 1);
        std::memcpy(head.data(), text.c_str(), static_cast<std::size_t>(at - text.c_str()));
        head[static_cast<std::size_t>(at - text.c_str())] = '\0';
        return std::strlen(field.c_str()) + std::strlen(head.c_str());
      });
}

}  // namespace

void register_lists_rows() {
  for (const std::size_t items : {10U, 100U, 10000U}) add_list_rows(items);
  for (const std::size_t size : {16U, 64U, 4096U}) add_reverse_row(size);
}

}  // namespace zeph_bench
