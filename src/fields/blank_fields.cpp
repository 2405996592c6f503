#include "fields/blank_fields.h"

#include <cstring>

#include "scan/byte_mask.h"
#include "scan/find_byte.h"
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
const char* put_near_fields(FieldWriter& writer, const char* text, std::size_t limit) {
  const std::size_t most = std::min(limit, mask_bytes + 1);
  const std::size_t size = strnlen(text, most);
  const char* from = text;
  std::uint64_t blanks = byte_mask(text, std::min(size, mask_bytes), blank);
  while (blanks != 0 && writer.left() > 1) {
    const char* const end = text + lowest_place(blanks);
    writer.put(from, end);
    from = skip_blanks(end + 1);
    const auto seen = static_cast<std::size_t>(from - text);
    blanks = seen < mask_bytes ? blanks >> seen << seen : 0;
  }
  if (size == most) return from;
  writer.put(from, text + size);
  writer.put_empty();
  return nullptr;
}

}  // namespace

void split_blank_fields(const char* text, FieldOutputs outputs, std::size_t limit) {
  FieldWriter writer(outputs, limit);
  if (limit == 0) return writer.put_empty();
  // A look pays if it may find two blanks, and for as long as fields are short.
  if (outputs.count > 2) {
    const char* before;
    do {
      before = text;
      text = put_near_fields(writer, text, limit);
      if (!text) return;
    } while (text != before && writer.left() > 2);
  }
  if (writer.left() == outputs.count) {
    const char* const end = find_byte_or_end(text, blank);
    writer.put(text, end);
    text = skip_blanks(end);
  }
  while (writer.left() > 1) {
    const char* const end = find_byte_or_end(text, blank, limit);
    writer.put(text, end);
    if (static_cast<std::size_t>(end - text) == limit) return writer.put_empty();
    text = skip_blanks(end);
  }
  writer.put(text, text + strnlen(text, limit));
}

namespace {

template <typename... Outputs>
void split_blank_bytes(const char* text, int limit, Outputs... outputs) {
  char* const fields[] = {outputs...};
  split_blank_fields(text, {fields, sizeof...(Outputs)}, field_limit(limit));
}

template <typename... Outputs>
void split_blank_string(const std::string& text, int limit, Outputs&... outputs) {
  const std::size_t room = field_limit(limit);
  const auto split = [&](FieldOutputs work) { split_blank_fields(text.c_str(), work, room); };
  split_into_strings(room, split, outputs...);
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
