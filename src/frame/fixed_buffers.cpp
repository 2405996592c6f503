#include "frame/fixed_buffers.h"

#include "frame/put_integer.h"
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

// Where the room may be too small. It stays out of the way of those who need no room on the stack.
[[gnu::noinline]] void put_cut_integer(char* out, int value, int size) {
  char digits[longest_integer];
  put_cut(out, digits, static_cast<std::size_t>(put_integer(digits, value) - digits), size);
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
  if (__builtin_expect(size < 0 || size >= static_cast<int>(zeph::longest_integer), 1)) {
    zeph::put_integer(target, value);
  } else {
    zeph::put_cut_integer(target, value, size);
  }
  return true;
}

bool Zeph_Copy_Stack(char* target, double value, int size) {
  char digits[zeph::longest_real];
  zeph::put_cut(target, digits, zeph::put_real(digits, value), size);
  return true;
}

}  // namespace Orbane
