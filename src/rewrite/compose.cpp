// Texts and numbers appended to a byte text, and formats printed into a String.
#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <new>

#include "frame/fixed_buffers.h"
#include "frame/formatted_text.h"
#include "frame/put_integer.h"
#include "number/real_format.h"
#include "rewrite/plain_print.h"
#include "zeph.h"

namespace zeph {
namespace {

// The printed text, cut to a buffer of `size` bytes, up to its first zero byte. Short texts are
// printed once and take no heap but the result's; a longer one is printed again into the result.
std::string splice(std::size_t size, const char* format, std::va_list arguments) {
  constexpr std::size_t most_near = 2048;
  char near[most_near + PlainPrint::slack];
  const std::size_t room = std::min(size, most_near);
  PlainPrint plain(near, near + room - 1);
  std::va_list copy;
  va_copy(copy, arguments);
  const bool printed = plain.print(format, copy);
  va_end(copy);
  if (printed && (!plain.cut() || room == size)) return std::string(near, plain.end());
  const int length = format_list_bounded(near, room, format, arguments);
  const bool printed_whole = length >= 0 && static_cast<std::size_t>(length) < room;
  if (printed_whole || (room == size && length >= 0)) {
    return std::string(near, strnlen(near, room - 1));
  }
  // A print that failed leaves what it had printed so far, as far as the room goes.
  const std::size_t whole = length < 0 ? size : static_cast<std::size_t>(length);
  std::string text(whole < size ? whole : size - 1, '\0');
  format_list_bounded(text.data(), text.size() + 1, format, arguments);
  text.resize(std::strlen(text.c_str()));
  return text;
}

}  // namespace
}  // namespace zeph

namespace Orbane {

char* Zeph_Cat(char* text, const char* more) {
  char* const end = text + std::strlen(text);
  // `more` may end where the text does: its terminator is read before it is written over.
  zeph::move_bytes(end, more, std::strlen(more) + 1);
  return text;
}

char* Zeph_Cat(char* text, char byte) {
  if (byte == '\0') return text;
  const char with_terminator[] = {byte, '\0'};  // one store, not two
  std::memcpy(text + std::strlen(text), with_terminator, sizeof with_terminator);
  return text;
}

char* Zeph_Cat(char* text, int value) {
  zeph::put_integer(text + std::strlen(text), value);
  return text;
}

char* Zeph_Cat(char* text, float value) {
  return Zeph_Cat(text, static_cast<double>(value));
}

char* Zeph_Cat(char* text, double value) {
  char digits[zeph::longest_real];
  const std::size_t size = zeph::put_real(digits, value) + 1;
  zeph::move_bytes(text + std::strlen(text), digits, size);
  return text;
}

std::string Zeph_Splicing(int size, const char* format, ...) {
  // As an unsigned size, a negative one is more than any heap has. The heap is not even asked:
  // checking heaps take such a request for a fault and stop the process.
  if (size < 0) throw std::bad_alloc();
  if (size <= 1) return std::string();
  struct Arguments {
    std::va_list list;
    ~Arguments() {
      va_end(list);
    }
  } arguments;
  va_start(arguments.list, format);
  return zeph::splice(static_cast<std::size_t>(size), format, arguments.list);
}

}  // namespace Orbane
