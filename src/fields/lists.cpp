// Texts to lists of Strings and back, for any number of items.
#include <cstring>
#include <functional>

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

void append_items(const std::string& text, char delimiter, List& list) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    const auto left = static_cast<std::size_t>(end - at);
    const void* const found = std::memchr(at, delimiter, left);
    const char* const stop = found ? static_cast<const char*>(found) : end;
    if (stop != at) list.emplace_back(at, stop);
    at = found ? stop + 1 : end;
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
      move_bytes(to, item.data(), item.size());
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
