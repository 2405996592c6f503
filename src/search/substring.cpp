// Pieces of a text by position, between two delimiters, and the last component of a path.
#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include "frame/fixed_buffers.h"
#include "frame/string_pieces.h"
#include "scan/last_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

// The text of this exception is part of the interface; the standard libraries have their own.
[[noreturn]] void refuse_position() {
  throw std::out_of_range("invalid string position");
}

// The bytes that a count asks for out of those that are there; a negative count asks for all.
std::size_t bytes_wanted(int count, std::size_t there) {
  return count < 0 ? there : std::min(there, static_cast<std::size_t>(count));
}

// Replaces `out` by a piece of `text`, which may be the same object.
void assign_slice(std::string& out, const std::string& text, std::size_t start, int count) {
  put_string(out, text.data() + start, bytes_wanted(count, text.size() - start));
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Get_SubString(const char* text, int start, int count, char* out) {
  if (start < 0) return false;
  const auto from = static_cast<std::size_t>(start);
  // Even an empty piece has to start inside the text, in front of one byte of it.
  const auto wanted = static_cast<std::size_t>(count);
  const std::size_t there =
      count < 0 ? std::strlen(text) : strnlen(text, from + std::max<std::size_t>(wanted, 1));
  if (there <= from) return false;
  zeph::put_text(out, text + from, zeph::bytes_wanted(count, there - from));
  return true;
}

bool Zeph_Get_SubString(const std::string& text, int start, int count, std::string& out) {
  if (start < 0) zeph::refuse_position();
  const auto from = static_cast<std::size_t>(start);
  if (from >= text.size()) return false;
  zeph::assign_slice(out, text, from, count);
  return true;
}

bool Zeph_Get_SubString(const std::string& text, char open, char close, std::string& out) {
  const std::size_t from = zeph::place_of(text, open);
  const std::size_t to = zeph::place_of(text, close);
  if (from == std::string::npos || to == std::string::npos || from + 1 >= to) return false;
  zeph::put_string(out, text.data() + from + 1, to - from - 1);
  return true;
}

void Zeph_Ext_Str_From_Str(const char* text, int start, int count, char* out) {
  const bool inside = start >= 0 && count >= 0;
  zeph::put_text(out, inside ? text + start : text, inside ? static_cast<std::size_t>(count) : 0);
}

void Zeph_Ext_Str_From_Str(const std::string& text, int start, int count, std::string& out) {
  if (start < 0 || static_cast<std::size_t>(start) > text.size()) zeph::refuse_position();
  zeph::assign_slice(out, text, static_cast<std::size_t>(start), count);
}

void Zeph_Ext_Name_From_FullPath(char* out, const char* path, int size) {
  const std::size_t end = std::strlen(path);
  const std::size_t name = zeph::behind_last(path, end, '/', '\\');
  const std::size_t room = static_cast<std::size_t>(std::max(size, 0));
  zeph::put_text(out, path + name, std::min(end - name, room));
}

}  // namespace Orbane
