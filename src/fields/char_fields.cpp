// Fields between single delimiters.
#include "fields/field_outputs.h"

#include <cstring>

#include "scan/byte_mask.h"
#include "zeph.h"

namespace zeph {
namespace {

// Puts the fields that end within the next bytes of the text, all found by one look. Returns where
// the next field starts, or NULL if the text ended and all fields are put.
template <typename Sink>
inline const char* put_near_fields(Sink& fields, const char* text, char delimiter) {
  const std::size_t size = strnlen(text, mask_bytes + 1);
  const char* from = text;
  std::uint64_t places = byte_mask(text, std::min(size, mask_bytes), delimiter);
  for (; places != 0 && fields.left() > 1; places &= places - 1) {
    const char* const end = text + lowest_place(places);
    fields.put(from, end);
    from = end + 1;
  }
  if (size > mask_bytes) return from;
  fields.put(from, text + size);
  fields.put_empty();
  return nullptr;
}

// The core of Zeph_Seperate_Char: one pass; a zero delimiter is never found.
template <typename Sink>
inline void split_fields_singly(const char* text, char delimiter, Sink fields) {
  while (fields.left() > 1) {
    const char* const end = fields.put_up_to(text, delimiter);
    if (*end == '\0') return fields.put_empty();
    text = end + 1;
  }
  fields.put_rest(text);
}

// The same for more than three fields: a look pays if it may find several delimiters, and for as
// long as fields are short, which the first one tells.
template <typename Sink>
void split_many_fields(const char* text, char delimiter, Sink fields) {
  for (;;) {
    const char* const before = text;
    const char* const end = fields.put_up_to(text, delimiter);
    if (*end == '\0') return fields.put_empty();
    text = end + 1;
    if (end - before > 32 || fields.left() < 3) break;
    text = put_near_fields(fields, text, delimiter);
    if (!text) return;
    if (fields.left() < 3) break;
  }
  split_fields_singly<Sink>(text, delimiter, fields);
}

template <std::size_t count, typename Sink>
void split_char_fields(const char* text, char delimiter, Sink fields) {
  if constexpr (count < 4) {
    split_fields_singly<Sink>(text, delimiter, fields);
  } else {
    split_many_fields<Sink>(text, delimiter, fields);
  }
}

template <typename... Outputs>
void split_char_bytes(const char* text, char delimiter, int limit, Outputs... outputs) {
  constexpr std::size_t count = sizeof...(Outputs);
  char* const rooms[] = {outputs...};
  split_char_fields<count>(text, delimiter, FieldWriter(rooms, count, field_limit(limit)));
}

template <typename... Outputs>
void split_char_string(const std::string& text, char delimiter, int limit, Outputs&... outputs) {
  const auto split = [delimiter](const char* bytes, auto& fields) {
    split_char_fields<sizeof...(Outputs), decltype(fields)>(bytes, delimiter, fields);
  };
  split_into_strings(text, limit, split, outputs...);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2, int limit) {
  zeph::split_char_bytes(text, delimiter, limit, field1, field2);
}

void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2, char* field3,
                        int limit) {
  zeph::split_char_bytes(text, delimiter, limit, field1, field2, field3);
}

void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2, char* field3,
                        char* field4, int limit) {
  zeph::split_char_bytes(text, delimiter, limit, field1, field2, field3, field4);
}

void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2, char* field3,
                        char* field4, char* field5, int limit) {
  zeph::split_char_bytes(text, delimiter, limit, field1, field2, field3, field4, field5);
}

void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                        std::string& field2, int limit) {
  zeph::split_char_string(text, delimiter, limit, field1, field2);
}

void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                        std::string& field2, std::string& field3, int limit) {
  zeph::split_char_string(text, delimiter, limit, field1, field2, field3);
}

void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                        std::string& field2, std::string& field3, std::string& field4, int limit) {
  zeph::split_char_string(text, delimiter, limit, field1, field2, field3, field4);
}

void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                        std::string& field2, std::string& field3, std::string& field4,
                        std::string& field5, int limit) {
  zeph::split_char_string(text, delimiter, limit, field1, field2, field3, field4, field5);
}

}  // namespace Orbane
