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

struct Arguments {
  std::va_list list;
  ~Arguments() {
    va_end(list);
  }
};

// As splice(), by the runtime and up to the first zero byte. Short texts are printed once and take
// no heap but the result's; a longer one is printed again into the result. By itself, so that only
// these prints have two rooms on the stack.
[[gnu::noinline]] void print_by_runtime(std::string& text, std::size_t size, const char* format,
                                        std::va_list arguments) {
  char near[2048];
  const std::size_t room = std::min(size, sizeof near);
  const int length = format_list_bounded(near, room, format, arguments);
  const bool printed_whole = length >= 0 && static_cast<std::size_t>(length) < room;
  if (printed_whole || (room == size && length >= 0)) {
    text.assign(near, strnlen(near, room - 1));
    return;
  }
  // A print that failed leaves what it had printed so far, as far as the room goes.
  const std::size_t whole = length < 0 ? size : static_cast<std::size_t>(length);
  text.assign(whole < size ? whole : size - 1, '\0');
  format_list_bounded(text.data(), text.size() + 1, format, arguments);
  text.resize(std::strlen(text.c_str()));
}

// The printed text, cut to a buffer of `size` bytes.
std::string splice(std::size_t size, const char* format, std::va_list arguments) {
  char near[PlainPrint::near_room];
  std::string text;
  Arguments copy;
  va_copy(copy.list, arguments);
  PlainPrint plain(near, text, size - 1);
  if (!plain.print(format, copy.list)) {
    print_by_runtime(text, size, format, arguments);
    return text;
  }
  if (text.empty()) return std::string(near, plain.end());
  text.append(near, plain.end());
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
  zeph::Arguments arguments;
  va_start(arguments.list, format);
  return zeph::splice(static_cast<std::size_t>(size), format, arguments.list);
}

}  // namespace Orbane
