#include "frame/fixed_buffers.h"

#include <charconv>
#include <climits>

#include "frame/formatted_text.h"
#include "zeph.h"

namespace Orbane {

bool Zeph_Copy_Stack(char* target, const char* source, int size) {
  if (size == 0) return true;
  const char* const text = source ? source : zeph::empty_text;
  zeph::put_text(target, text, strnlen(text, zeph::content_room(size)));
  return true;
}

bool Zeph_Copy_Stack(char* target, int value, int size) {
  if (size == 0) return true;
  char digits[sizeof "-2147483648"];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  const auto length = static_cast<std::size_t>(end - digits);
  const std::size_t room = zeph::content_room(size);
  zeph::put_text(target, digits, length < room ? length : room);
  return true;
}

bool Zeph_Copy_Stack(char* target, double value, int size) {
  // The longest text, the largest double, has 317 bytes: INT_MAX is no limit to it.
  const auto room = static_cast<std::size_t>(size < 0 ? INT_MAX : size);
  zeph::format_bounded(target, room, "%f", value);
  return true;
}

}  // namespace Orbane
