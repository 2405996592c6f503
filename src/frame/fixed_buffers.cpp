#include "frame/fixed_buffers.h"

#include <charconv>

#include "number/real_format.h"
#include "zeph.h"

namespace zeph {
namespace {

// Writes as much of a text as a buffer of `size` bytes takes. One copy of it serves all forms.
[[gnu::noinline]] void put_cut(char* out, const char* text, std::size_t length, int size) {
  if (size == 0) return;
  const std::size_t room = content_room(size);
  put_text(out, text, length < room ? length : room);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Copy_Stack(char* target, const char* source, int size) {
  if (size == 0) return true;
  const char* const text = source ? source : zeph::empty_text;
  zeph::put_text(target, text, strnlen(text, zeph::content_room(size)));
  return true;
}

bool Zeph_Copy_Stack(char* target, int value, int size) {
  constexpr int longest = sizeof "-2147483648";
  if (size < 0 || size >= longest) {
    *std::to_chars(target, target + longest - 1, value).ptr = '\0';
    return true;
  }
  char digits[longest] = "";
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  zeph::put_cut(target, digits, static_cast<std::size_t>(end - digits), size);
  return true;
}

bool Zeph_Copy_Stack(char* target, double value, int size) {
  char digits[zeph::longest_real];
  zeph::put_cut(target, digits, zeph::put_real(digits, value), size);
  return true;
}

}  // namespace Orbane
