// Where byte texts and output rooms lie.
#include <algorithm>
#include <cstring>
#include <new>

#include "bench.h"

namespace zeph_bench {

void Places::Free::operator()(char* block) const {
  ::operator delete(block, std::align_val_t(4096));
}

char* Places::room(std::size_t size) {
  constexpr std::size_t page = 4096, apart = 9 * 64;
  const std::size_t place = page - apart * (blocks_.size() % 7 + 1);
  blocks_.emplace_back(static_cast<char*>(::operator new(place + size, std::align_val_t(page))));
  return static_cast<char*>(std::memset(blocks_.back().get() + place, 0, size));
}

char* Places::text(std::string_view text, std::size_t room_size) {
  char* const to = room(std::max(text.size() + 1, room_size));
  text.copy(to, text.size());
  return to;
}

std::string take(char* room) {
  std::string text = room;
  room[0] = '#';
  return text;
}

}  // namespace zeph_bench
