// What the field splitters share: the outputs of one call, and the String forms.
#ifndef ZEPH_FIELDS_FIELD_OUTPUTS_H
#define ZEPH_FIELDS_FIELD_OUTPUTS_H

#include <array>
#include <cstddef>
#include <string>

#include "frame/owned_buffers.h"

namespace zeph {

// The outputs of one split in field order, each with room for limit + 1 bytes.
struct FieldOutputs {
  char* const* fields;
  std::size_t count;  // 2 to 5
};

// The content that one field may hold: a limit below 0 is 0.
constexpr std::size_t field_limit(int limit) {
  return limit < 0 ? 0 : static_cast<std::size_t>(limit);
}

// What several separators in a row do.
enum class SeparatorRun { one_separator, each_cuts };

// Copies the field at `text`, up to `delimiter` or the end, cut at `limit` bytes. Returns where the
// field ends in the text.
const char* put_field(char* out, const char* text, char delimiter, std::size_t limit);

// Copies all that remains of the text, cut at `limit` bytes. `out` may be the text itself.
void put_rest(char* out, const char* text, std::size_t limit);

// Makes every field from number `first` (from 0) on the empty text.
void clear_fields(FieldOutputs outputs, std::size_t first);

// The String form of a splitter: split(outputs) cuts into work buffers, then the outputs are
// replaced. They keep what they held if a work buffer was refused.
template <typename Split, typename... Strings>
void split_into_strings(std::size_t limit, Split split, Strings&... outputs) {
  constexpr std::size_t count = sizeof...(Strings);
  const WorkBuffers<count> work(limit + 1);
  if (!work.complete()) return;
  split(FieldOutputs{work.all().data(), count});
  const char* const* field = work.all().data();
  ((outputs = *field++), ...);
}

}  // namespace zeph

#endif  // ZEPH_FIELDS_FIELD_OUTPUTS_H
