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

bool holds_any_integer(int size) {
  return size < 0 || size >= static_cast<int>(longest_integer);
}

// Where the number is long or the room may be too small. It stays out of the way of those who need
// no room on the stack.
[[gnu::noinline]] bool put_rare_integer(char* out, int value, int size) {
  if (holds_any_integer(size)) {
    put_integer(out, value);
    return true;
  }
  char digits[longest_integer];
  put_cut(out, digits, static_cast<std::size_t>(put_integer(digits, value) - digits), size);
  return true;
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
  if (__builtin_expect(!zeph::holds_any_integer(size) || zeph::has_many_digits(value), 0)) {
    return zeph::put_rare_integer(target, value, size);
  }
  zeph::put_integer(target, value);
  return true;
}

bool Zeph_Copy_Stack(char* target, double value, int size) {
  char digits[zeph::longest_real];
  zeph::put_cut(target, digits, zeph::put_real(digits, value), size);
  return true;
}

}  // namespace Orbane
