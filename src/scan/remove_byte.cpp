#include "scan/remove_byte.h"

#include <algorithm>
#include <cstring>

#include "scan/wide.h"

namespace zeph {
namespace {

constexpr std::size_t near = 32;

// The next bytes, at most `near`. Where hits stand close together each byte is stored, kept or not,
// which costs no branch.
Removal remove_near(char* text, std::size_t size, char byte, Removal removal) {
  const std::size_t end = removal.next + std::min(near, size - removal.next);
  for (; removal.next < end; ++removal.next) {
    const char next = text[removal.next];
    text[removal.kept] = next;
    removal.kept += next != byte;
  }
  return removal;
}

// A far byte is looked for wide, and what lies in front of it is moved in one piece. Where less
// than a step is left, it begins in front of the first hit.
template <typename Dense>
std::size_t remove_with(char* text, std::size_t size, char byte, Dense dense) {
  const auto find = [=](std::size_t from) {
    const void* const found = std::memchr(text + from, byte, size - from);
    return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text) : size;
  };
  const std::size_t first = find(0);
  if (first == size) return size;
  const std::size_t start = std::min(first, size - std::min(near, size));
  Removal removal{start, start};
  while (removal.next < size) {
    removal = dense(removal);
    const Removal before = removal;
    removal = remove_near(text, size, byte, removal);
    if (removal.kept - before.kept != near) continue;
    const std::size_t run = find(removal.next) - removal.next;
    std::memmove(text + removal.kept, text + removal.next, run);
    removal.kept += run;
    removal.next += run;
  }
  return removal.kept;
}

}  // namespace

std::size_t remove_byte_portable(char* text, std::size_t size, char byte) {
  return remove_with(text, size, byte, [](Removal removal) { return removal; });
}

std::size_t remove_byte_wide(char* text, std::size_t size, char byte) {
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) {
    return remove_with(text, size, byte, [=](Removal removal) {
      return remove_dense_byte_avx2(text, size, byte, removal);
    });
  }
#endif
  return remove_byte_portable(text, size, byte);
}

}  // namespace zeph
