#include "fields/char_fields.h"

#include "zeph.h"

namespace zeph {

void split_char_fields(const char* text, char delimiter, FieldOutputs outputs, std::size_t limit) {
  const std::size_t last = outputs.count - 1;
  for (std::size_t i = 0; i < last; ++i) {
    text = put_field(outputs.fields[i], text, delimiter, limit);
    if (*text == '\0') {
      clear_fields(outputs, i + 1);
      return;
    }
    ++text;
  }
  put_rest(outputs.fields[last], text, limit);
}

namespace {

template <typename... Outputs>
void split_char_bytes(const char* text, char delimiter, int limit, Outputs... outputs) {
  char* const fields[] = {outputs...};
  split_char_fields(text, delimiter, {fields, sizeof...(Outputs)}, field_limit(limit));
}

template <typename... Outputs>
void split_char_string(const std::string& text, char delimiter, int limit, Outputs&... outputs) {
  const std::size_t room = field_limit(limit);
  const auto split = [&](FieldOutputs work) {
    split_char_fields(text.c_str(), delimiter, work, room);
  };
  split_into_strings(room, split, outputs...);
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
