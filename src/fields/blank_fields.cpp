#include "fields/blank_fields.h"

#include "frame/fixed_buffers.h"
#include "scan/find_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char blank = ' ';

const char* skip_blanks(const char* text) {
  while (*text == blank) ++text;
  return text;
}

}  // namespace

void split_blank_fields(const char* text, FieldOutputs outputs, std::size_t limit) {
  if (limit == 0) {
    clear_fields(outputs, 0);
    return;
  }
  const std::size_t last = outputs.count - 1;
  text = put_field(outputs.fields[0], text, blank, limit);
  for (std::size_t i = 1; i < last; ++i) {
    text = skip_blanks(text);
    const char* const end = find_byte_or_end(text, blank, limit);
    const auto size = static_cast<std::size_t>(end - text);
    put_text(outputs.fields[i], text, size);
    if (size == limit) {
      clear_fields(outputs, i + 1);
      return;
    }
    text = end;
  }
  put_rest(outputs.fields[last], skip_blanks(text), limit);
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
