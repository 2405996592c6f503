// Texts to lists of Strings and back, for any number of items.
#include <algorithm>
#include <cstring>
#include <functional>
#include <string_view>

#include "frame/string_pieces.h"
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

// A view that an array of them does not clear.
struct Item {
  const char* from;
  std::size_t size;
};

// The items of a short text are found before the list makes room for them; of a longer one the
// others are counted.
void append_items(const std::string& text, char delimiter, List& list) {
  constexpr std::size_t batch = 32;
  Item items[batch];
  std::size_t found = 0;
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto next_item = [&at, end, delimiter] {
    const char* const from = at;
    const void* const stop = std::memchr(from, delimiter, static_cast<std::size_t>(end - from));
    const char* const to = stop ? static_cast<const char*>(stop) : end;
    at = stop ? to + 1 : end;
    return Item{from, static_cast<std::size_t>(to - from)};
  };
  while (at != end && found < batch) {
    items[found] = next_item();
    if (items[found].size > 0) ++found;
  }
  make_room(list, at == end ? found : found + count_items(at, end, delimiter));
  for (std::size_t i = 0; i < found; ++i) list.emplace_back(items[i].from, items[i].size);
  while (at != end) {
    const Item item = next_item();
    if (item.size > 0) list.emplace_back(item.from, item.size);
  }
}

// Items that are long on average: every byte is written once.
[[gnu::noinline]] void join_long(const List& list, char delimiter, std::size_t size,
                                 std::string& out) {
  if (size > out.capacity()) out.reserve(size);
  for (const std::string& item : list) {
    if (&item != list.data()) out.push_back(delimiter);
    if (&item != &out) out.append(item);
  }
}

// `out` starts empty. Where it is an item of the list itself, that item is empty too.
void append_joined(const List& list, char delimiter, std::string& out) {
  if (list.size() < 2) {
    if (!list.empty()) out = list.front();
    return;
  }
  constexpr std::size_t long_item = 256;
  std::size_t size = list.size() - 1;
  for (const std::string& item : list) size += item.size();
  if (size > long_item * list.size()) return join_long(list, delimiter, size, out);
  out.resize(size, delimiter);
  char* to = out.data();
  for (const std::string& item : list) {
    if (&item != &out) {
      const std::string_view bytes = item;  // its size is known behind the copy, too
      move_piece(to, bytes.data(), bytes.size());
      to += bytes.size();
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
  if (list.size() == 1) return zeph::make_string(list[0].data(), list[0].size());
  std::string joined;
  zeph::append_joined(list, delimiter, joined);
  return joined;
}

void Zeph_Join(const std::vector<std::string>& list, char delimiter, std::string& out) {
  out.clear();
  zeph::append_joined(list, delimiter, out);
}

}  // namespace Orbane
