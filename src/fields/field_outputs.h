// What the field splitters share: writing what they found, and the String forms.
#ifndef ZEPH_FIELDS_FIELD_OUTPUTS_H
#define ZEPH_FIELDS_FIELD_OUTPUTS_H

#include <algorithm>
#include <cstddef>
#include <string>

#include "frame/fixed_buffers.h"
#include "frame/owned_buffers.h"
#include "frame/string_pieces.h"
#include "scan/copy_text.h"
#include "scan/find_byte.h"
#include "scan/move_bytes.h"

namespace zeph {

// The content that one field may hold: a limit below 0 is 0.
constexpr std::size_t field_limit(int limit) {
  return limit < 0 ? 0 : static_cast<std::size_t>(limit);
}

// What several separators in a row do.
enum class SeparatorRun { one_separator, each_cuts };

// Writes the bytes from `from` up to `end`, cut at `limit`, as a field. They may overlap `out`.
inline void put_field(char* out, const char* from, const char* end, std::size_t limit) {
  const std::size_t size = std::min(static_cast<std::size_t>(end - from), limit);
  move_bytes(out, from, size);
  out[size] = '\0';
}

// Takes the fields of one split, the first one first, to byte outputs in field order, each with
// room for limit + 1 bytes. The last output may be the text itself: by then the splitter has read
// all that it reads.
class FieldWriter {
 public:
  FieldWriter(char* const* outputs, std::size_t count, std::size_t limit)
      : next_(outputs), end_(outputs + count), limit_(limit) {}

  std::size_t limit() const {
    return limit_;
  }
  // How many fields are still to be written.
  std::size_t left() const {
    return static_cast<std::size_t>(end_ - next_);
  }
  // Writes the bytes from `from` up to `end` as the next field. Inlined before anything else is, so
  // that a few outputs stay in registers.
  [[gnu::always_inline]] void put(const char* from, const char* end) {
    put_field(*next_++, from, end, limit_);
  }
  // Writes what stands in front of the separator as the next field. Returns where the field ends.
  const char* put_up_to(const char* from, char separator) {
    const char* const end = find_byte_or_end(from, separator);
    put(from, end);
    return end;
  }
  // The same where the limit ends a field, too. It is fastest within the `near` first bytes.
  const char* put_within_limit(const char* from, char separator, std::size_t near) {
    if (near > long_field) return put_long(from, separator);
    const char* const end = find_byte_or_end(from, separator, limit_, near);
    put(from, end);
    return end;
  }
  // Writes what is left of the text as the last field.
  void put_rest(const char* from) {
    put(from, from + strnlen(from, limit_));
  }
  // Makes all fields that are left the empty text.
  void put_empty() {
    while (next_ != end_) **next_++ = '\0';
  }

 private:
  static constexpr std::size_t long_field = 4096;

  // Copies a field while its end is looked for, in pieces that the nearest cache still has when
  // they are read the second time.
  const char* put_long(const char* from, char separator) {
    constexpr std::size_t piece = 8192;
    char* const out = *next_++;
    std::size_t size = 0;
    for (std::size_t kept = piece; kept == piece; size += kept) {
      const std::size_t here = strnlen(from + size, std::min(piece, limit_ - size));
      kept = copy_text(out + size, from + size, here, separator);
    }
    out[size] = '\0';
    return from + size;
  }

  char* const* next_;
  char* const* end_;
  std::size_t limit_;
};

// The same to Strings that are not the text, which is a String as well: all of it may be read.
class FieldStrings {
 public:
  FieldStrings(std::string* const* outputs, std::size_t count, std::size_t limit,
               const char* text_end)
      : next_(outputs), end_(outputs + count), limit_(limit), text_end_(text_end) {}

  std::size_t limit() const {
    return limit_;
  }
  std::size_t left() const {
    return static_cast<std::size_t>(end_ - next_);
  }
  void put(const char* from, const char* end) {
    put_string(**next_++, from, std::min(static_cast<std::size_t>(end - from), limit_));
  }
  const char* put_up_to(const char* from, char separator) {
    if (const char* const end = put_long(from, separator)) return end;
    const char* const end = find_byte_or_end(from, separator);
    put(from, end);
    return end;
  }
  const char* put_within_limit(const char* from, char separator, std::size_t near) {
    if (const char* const end = put_long(from, separator)) return end;
    const char* const end = find_byte_or_end(from, separator, limit_, near);
    put(from, end);
    return end;
  }
  void put_rest(const char* from) {
    const std::size_t most = most_of(from);
    std::string& out = **next_;
    if (most <= long_field || most > out.size()) return put(from, from + strnlen(from, most));
    out.erase(copy_text(&out[0], from, most));
    ++next_;
  }
  void put_empty() {
    while (next_ != end_) (*next_++)->clear();
  }

 private:
  static constexpr std::size_t long_field = 64;

  std::size_t most_of(const char* from) const {
    return std::min(static_cast<std::size_t>(text_end_ - from), limit_);
  }

  // Where a long field was, another one is expected: it is copied while its end is looked for.
  // Returns where it ends, or NULL if it is not put: it is longer than the former one or the limit.
  const char* put_long(const char* from, char separator) {
    std::string& out = **next_;
    if (out.size() <= long_field) return nullptr;
    const std::size_t most = std::min(most_of(from), out.size());
    const char* const end = from + copy_text(&out[0], from, most, separator);
    if (*end != separator && *end != '\0') return nullptr;
    out.erase(static_cast<std::size_t>(end - from));
    ++next_;
    return end;
  }

  std::string* const* next_;
  std::string* const* end_;
  std::size_t limit_;
  const char* text_end_;
};

// The String form of a splitter, which is split(text, sink). The interface promises a work buffer
// for each output, with a report for each that the heap refuses, and outputs that keep what they
// held then. The fields need these buffers only where an output is the text itself.
template <typename Split, typename... Strings>
void split_into_strings(const std::string& text, int limit, Split split, Strings&... outputs) {
  constexpr std::size_t count = sizeof...(Strings);
  const std::size_t room = field_limit(limit);
  if (((&outputs == &text) || ...)) {
    const WorkBuffers<count> work(room + 1);
    if (!work.complete()) return;
    FieldWriter fields(work.data(), count, room);
    split(text.c_str(), fields);
    std::size_t next = 0;
    ((outputs = work[next++]), ...);
  } else if (heap_grants(count, room + 1)) {
    std::string* const strings[] = {&outputs...};
    FieldStrings fields(strings, count, room, text.c_str() + text.size());
    split(text.c_str(), fields);
  }
}

}  // namespace zeph

#endif  // ZEPH_FIELDS_FIELD_OUTPUTS_H
