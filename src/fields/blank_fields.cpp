// Fields between blanks.
#include "fields/field_outputs.h"

#include <cstring>

#include "scan/byte_mask.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char blank = ' ';

const char* skip_blanks(const char* text) {
  while (*text == blank) ++text;
  return text;
}

// Puts the fields that end within the next bytes of the text, all found by one look. Returns where
// the next field starts, or NULL if the text ended and all fields are put.
//
// From wherever a field starts, a split reads at least `limit` bytes or up to the terminator: no
// field ends it before it has seen that many. So they are there to be looked at.
template <typename Sink>
inline const char* put_near_fields(Sink& fields, const char* text) {
  const std::size_t most = std::min(fields.limit(), mask_bytes + 1);
  const std::size_t size = strnlen(text, most);
  const char* from = text;
  std::uint64_t blanks = byte_mask(text, std::min(size, mask_bytes), blank);
  while (blanks != 0 && fields.left() > 1) {
    const char* const end = text + lowest_place(blanks);
    fields.put(from, end);
    from = skip_blanks(end + 1);
    const auto seen = static_cast<std::size_t>(from - text);
    blanks = seen < mask_bytes ? blanks >> seen << seen : 0;
  }
  if (size == most) return from;
  fields.put(from, text + size);
  fields.put_empty();
  return nullptr;
}

// The first field may be longer than the limit. Returns where the second one starts.
template <typename Sink>
inline const char* put_first_field(Sink& fields, const char* text, std::size_t& size) {
  const char* const end = fields.put_up_to(text, blank);
  size = static_cast<std::size_t>(end - text);
  return skip_blanks(end);
}

// Puts all fields behind the first, which had `size` bytes; others are often about as long.
template <typename Sink>
inline void put_fields_singly(Sink fields, const char* text, std::size_t size) {
  const std::size_t limit = fields.limit();
  while (fields.left() > 1) {
    const char* const end = fields.put_within_limit(text, blank, 256 + size);
    size = static_cast<std::size_t>(end - text);
    if (size == limit) return fields.put_empty();
    text = skip_blanks(end);
  }
  fields.put_rest(text);
}

// The core of Zeph_Seperate: one pass, which stops at the byte that fills a middle or the last
// field. A look pays if it may find several blanks, and for as long as fields are short, which the
// first one tells.
template <std::size_t count, typename Sink>
inline void split_blank_fields(const char* text, Sink fields) {
  if (fields.limit() == 0) return fields.put_empty();
  std::size_t size;
  text = put_first_field(fields, text, size);
  if constexpr (count > 3) {
    const char* before = size <= 32 ? nullptr : text;
    while (text != before && fields.left() > 2) {
      before = text;
      text = put_near_fields(fields, text);
      if (!text) return;
    }
  }
  put_fields_singly<Sink>(fields, text, size);
}

template <typename... Outputs>
void split_blank_bytes(const char* text, int limit, Outputs... outputs) {
  constexpr std::size_t count = sizeof...(Outputs);
  char* const rooms[] = {outputs...};
  split_blank_fields<count>(text, FieldWriter(rooms, count, field_limit(limit)));
}

template <typename... Outputs>
void split_blank_string(const std::string& text, int limit, Outputs&... outputs) {
  const auto split = [](const char* bytes, auto& fields) {
    split_blank_fields<sizeof...(Outputs), decltype(fields)>(bytes, fields);
  };
  split_into_strings(text, limit, split, outputs...);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Seperate(const char* text, char* field1, char* field2, int limit) {
  zeph::split_blank_bytes(text, limit, field1, field2);
}

void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3, int limit) {
  zeph::split_blank_bytes(text, limit, field1, field2, field3);
}

void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3, char* field4,
                   int limit) {
  zeph::split_blank_bytes(text, limit, field1, field2, field3, field4);
}

void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3, char* field4,
                   char* field5, int limit) {
  zeph::split_blank_bytes(text, limit, field1, field2, field3, field4, field5);
}

void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2, int limit) {
  zeph::split_blank_string(text, limit, field1, field2);
}

void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                   std::string& field3, int limit) {
  zeph::split_blank_string(text, limit, field1, field2, field3);
}

void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                   std::string& field3, std::string& field4, int limit) {
  zeph::split_blank_string(text, limit, field1, field2, field3, field4);
}

void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                   std::string& field3, std::string& field4, std::string& field5, int limit) {
  zeph::split_blank_string(text, limit, field1, field2, field3, field4, field5);
}

}  // namespace Orbane
