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
template <SeparatorRun run, std::size_t count>
inline void split_reverse(char* text, char separator, char* const (&outputs)[count]) {
  std::size_t end = std::strlen(text);
  std::size_t k = 0;
  while (k + 1 < count) {
    const std::size_t at = behind_last(text, end, separator);
    if (at == 0) break;
    put_field(outputs[k++], text + at, text + end, end);
    end = at - 1;
    if constexpr (run == SeparatorRun::one_separator) end -= run_at_back(text, end, separator);
  }
  if (outputs[k] == text) {
    text[end] = '\0';
  } else {
    put_field(outputs[k], text, text + end, end);
  }
  while (++k < count) outputs[k][0] = '\0';
}

template <typename... Outputs>
void split_blank_reverse(char* text, Outputs... outputs) {
  split_reverse<SeparatorRun::one_separator, sizeof...(Outputs)>(text, ' ', {outputs...});
}

template <typename... Outputs>
void split_char_reverse(char* text, char delimiter, Outputs... outputs) {
  split_reverse<SeparatorRun::each_cuts, sizeof...(Outputs)>(text, delimiter, {outputs...});
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
