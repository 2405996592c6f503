#include "fields/field_outputs.h"

#include <algorithm>
#include <cstring>

#include "frame/fixed_buffers.h"
#include "scan/find_byte.h"

namespace zeph {
namespace {

// Fields of this length and less are copied while they are scanned; longer ones are worth the
// runtime's wide search and copy.
constexpr std::size_t short_field = 16;

}  // namespace

const char* put_field(char* out, const char* text, char delimiter, std::size_t limit) {
  const std::size_t near = std::min(limit, short_field);
  for (std::size_t n = 0; n < near; ++n) {
    const char byte = text[n];
    if (byte == delimiter || byte == '\0') {
      out[n] = '\0';
      return text + n;
    }
    out[n] = byte;
  }
  const char* const end = find_byte_or_end(text + near, delimiter);
  const std::size_t size = std::min(static_cast<std::size_t>(end - text), limit);
  put_text(out + near, text + near, size - near);
  return end;
}

void put_rest(char* out, const char* text, std::size_t limit) {
  put_text(out, text, strnlen(text, limit));
}

void clear_fields(FieldOutputs outputs, std::size_t first) {
  for (std::size_t i = first; i < outputs.count; ++i) outputs.fields[i][0] = '\0';
}

}  // namespace zeph
