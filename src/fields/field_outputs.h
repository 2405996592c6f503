// What the field splitters share: writing what they found, and the String forms.
#ifndef ZEPH_FIELDS_FIELD_OUTPUTS_H
#define ZEPH_FIELDS_FIELD_OUTPUTS_H

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "frame/fixed_buffers.h"
#include "frame/owned_buffers.h"
#include "frame/string_pieces.h"
#include "scan/copy_text.h"
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
  template <std::size_t count>
  FieldWriter(char* const (&outputs)[count], std::size_t limit)
      : next_(outputs), end_(outputs + count), limit_(limit) {}

  std::size_t limit() const {
    return limit_;
  }
  // How many fields are still to be written.
  std::size_t left() const {
    return static_cast<std::size_t>(end_ - next_);
  }
  // Writes the bytes from `from` up to `end` as the next field.
  void put(const char* from, const char* end) {
    put_field(*next_++, from, end, limit_);
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
  char* const* next_;
  char* const* end_;
  std::size_t limit_;
};

// Notes where the fields of one split of a String stand.
template <std::size_t count>
class FieldPlaces {
 public:
  FieldPlaces(std::size_t limit, const char* text_end) : limit_(limit), text_end_(text_end) {}

  std::size_t limit() const {
    return limit_;
  }
  std::size_t left() const {
    return count - noted_;
  }
  void put(const char* from, const char* end) {
    fields_[noted_++] = {from, std::min(static_cast<std::size_t>(end - from), limit_)};
  }
  // A long rest is noted with all that may belong to it: a zero byte that ends it is looked for
  // when it is copied.
  void put_rest(const char* from) {
    constexpr std::size_t long_rest = 256;
    const std::size_t most = std::min(static_cast<std::size_t>(text_end_ - from), limit_);
    has_long_rest_ = most > long_rest;
    put(from, from + (has_long_rest_ ? most : strnlen(from, most)));
  }
  void put_empty() {
    noted_ = count;
  }
  // A long rest is not cut: it may go on behind a zero byte.
  std::string_view operator[](std::size_t index) const {
    return fields_[index];
  }
  // Only for outputs that are not the text.
  void assign_to(std::size_t index, std::string& out) const {
    const std::string_view field = fields_[index];
    if (index + 1 < count || !has_long_rest_) {
      put_string(out, field.data(), field.size());
    } else if (field.size() <= out.size()) {
      out.erase(copy_text(&out[0], field.data(), field.size()));
    } else {
      out.assign(field.data(), strnlen(field.data(), field.size()));
    }
  }

 private:
  std::string_view fields_[count];
  std::size_t noted_ = 0;
  std::size_t limit_;
  const char* text_end_;
  bool has_long_rest_ = false;
};

// The String form of a splitter, which is split(text, sink). The interface promises a work buffer
// for each output, with a report for each that the heap refuses, and outputs that keep what they
// held then. The fields need these buffers only where an output is the text itself.
template <typename Split, typename... Strings>
void split_into_strings(const std::string& text, int limit, Split split, Strings&... outputs) {
  constexpr std::size_t count = sizeof...(Strings);
  const std::size_t room = field_limit(limit);
  const WorkBuffers<count> work(room + 1);
  if (!work.complete()) return;
  FieldPlaces<count> fields(room, text.c_str() + text.size());
  split(text.c_str(), fields);
  std::size_t next = 0;
  if (((&outputs == &text) || ...)) {
    // As byte texts the buffers cut a long rest, too.
    for (std::size_t i = 0; i < count; ++i) put_text(work[i], fields[i].data(), fields[i].size());
    ((outputs = work[next++]), ...);
  } else {
    (fields.assign_to(next++, outputs), ...);
  }
}

}  // namespace zeph

#endif  // ZEPH_FIELDS_FIELD_OUTPUTS_H
