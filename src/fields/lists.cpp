// Texts to lists of Strings and back, for any number of items.
#include <algorithm>
#include <cstring>
#include <functional>
#include <string_view>

#include "scan/move_bytes.h"
#include "zeph.h"

namespace zeph {
namespace {

using List = std::vector<std::string>;

bool is_item_of(const std::string& text, const List& list) {
  const std::less<const std::string*> before;
  const std::string* const begin = list.data();
  return !before(&text, begin) && before(&text, begin + list.size());
}

// How many items there are: bytes that are no delimiter behind one that is.
std::size_t count_items(const char* from, const char* end, char delimiter) {
  std::size_t count = *from != delimiter;
  for (; from + 1 < end; ++from) count += (from[0] == delimiter) & (from[1] != delimiter);
  return count;
}

// Room for so many more items at once; a list that many texts are split into grows by factors.
void make_room(List& list, std::size_t count) {
  const std::size_t needed = list.size() + count;
  if (needed > list.capacity()) list.reserve(std::max(needed, 2 * list.capacity()));
}

// The items of a short text are found before the list makes room for them; of a longer one the
// others are counted.
void append_items(const std::string& text, char delimiter, List& list) {
  constexpr std::size_t batch = 32;
  std::string_view items[batch];
  std::size_t found = 0;
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto next_item = [&at, end, delimiter] {
    const char* const from = at;
    const void* const stop = std::memchr(from, delimiter, static_cast<std::size_t>(end - from));
    const char* const to = stop ? static_cast<const char*>(stop) : end;
    at = stop ? to + 1 : end;
    return std::string_view(from, static_cast<std::size_t>(to - from));
  };
  while (at != end && found < batch) {
    items[found] = next_item();
    if (!items[found].empty()) ++found;
  }
  make_room(list, at == end ? found : found + count_items(at, end, delimiter));
  for (std::size_t i = 0; i < found; ++i) list.emplace_back(items[i]);
  while (at != end) {
    const std::string_view item = next_item();
    if (!item.empty()) list.emplace_back(item);
  }
}

// `out` starts empty. Where it is an item of the list itself, that item is empty too.
void append_joined(const List& list, char delimiter, std::string& out) {
  if (list.empty()) return;
  std::size_t size = list.size() - 1;
  for (const std::string& item : list) size += item.size();
  out.resize(size, delimiter);
  char* to = out.data();
  for (const std::string& item : list) {
    if (&item != &out) {
      move_piece(to, item.data(), item.size());
      to += item.size();
    }
    ++to;
  }
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Split(const std::string& text, char delimiter, std::vector<std::string>& list) {
  if (zeph::is_item_of(text, list)) {
    zeph::append_items(std::string(text), delimiter, list);  // the list may move its items
  } else {
    zeph::append_items(text, delimiter, list);
  }
}

std::string Zeph_Join(const std::vector<std::string>& list, char delimiter) {
  std::string joined;
  zeph::append_joined(list, delimiter, joined);
  return joined;
}

void Zeph_Join(const std::vector<std::string>& list, char delimiter, std::string& out) {
  out.clear();
  zeph::append_joined(list, delimiter, out);
}

}  // namespace Orbane
