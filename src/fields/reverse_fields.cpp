// Fields cut off the right end of a text; the head of the text stays in one piece.
#include <cstring>

#include "fields/field_outputs.h"
#include "scan/last_byte.h"
#include "scan/other_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

// The core of both names. Output 1 takes the rightmost field; the last output takes the remainder
// and may be the text itself, which is then cut in place.
void split_reverse(char* text, char separator, SeparatorRun run, FieldOutputs outputs) {
  const std::size_t last = outputs.count - 1;
  std::size_t end = std::strlen(text);
  std::size_t k = 0;
  while (k < last) {
    std::size_t at = behind_last(text, end, separator);
    if (at == 0) break;
    put_field(outputs.fields[k++], text + at, text + end, end);
    --at;
    end = run == SeparatorRun::one_separator ? at - run_at_back(text, at, separator) : at;
  }
  if (outputs.fields[k] == text) {
    text[end] = '\0';
  } else {
    put_field(outputs.fields[k], text, text + end, end);
  }
  clear_fields(outputs, k + 1);
}

template <typename... Outputs>
void split_blank_reverse(char* text, Outputs... outputs) {
  char* const fields[] = {outputs...};
  split_reverse(text, ' ', SeparatorRun::one_separator, {fields, sizeof...(Outputs)});
}

template <typename... Outputs>
void split_char_reverse(char* text, char delimiter, Outputs... outputs) {
  char* const fields[] = {outputs...};
  split_reverse(text, delimiter, SeparatorRun::each_cuts, {fields, sizeof...(Outputs)});
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Seperate_Reverse(char* text, char* field1, char* field2) {
  zeph::split_blank_reverse(text, field1, field2);
}

void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3) {
  zeph::split_blank_reverse(text, field1, field2, field3);
}

void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3, char* field4) {
  zeph::split_blank_reverse(text, field1, field2, field3, field4);
}

void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3, char* field4,
                           char* field5) {
  zeph::split_blank_reverse(text, field1, field2, field3, field4, field5);
}

void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2) {
  zeph::split_char_reverse(text, delimiter, field1, field2);
}

void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                char* field3) {
  zeph::split_char_reverse(text, delimiter, field1, field2, field3);
}

void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                char* field3, char* field4) {
  zeph::split_char_reverse(text, delimiter, field1, field2, field3, field4);
}

void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                char* field3, char* field4, char* field5) {
  zeph::split_char_reverse(text, delimiter, field1, field2, field3, field4, field5);
}

}  // namespace Orbane
