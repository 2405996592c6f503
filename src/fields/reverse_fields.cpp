// Fields cut off the right end of a text; the head of the text stays in one piece.
#include <algorithm>
#include <cstring>

#include "fields/field_outputs.h"
#include "scan/byte_mask.h"
#include "scan/last_byte.h"
#include "scan/other_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

[[gnu::noinline]] std::size_t behind_last_in_front(const char* text, std::size_t end,
                                                   char separator) {
  return behind_last(text, end, separator);
}

// The separators from the end of a text on. One look finds all that stand in the last 64 bytes.
class LastSeparators {
 public:
  LastSeparators(const char* text, std::size_t size, char separator)
      : text_(text), front_(size - std::min(size, mask_bytes)), separator_(separator) {
    places_ = byte_mask(text + front_, size - front_, separator);
  }

  // How many bytes up to and including the last one in front of `end`; 0 if there is none. `end`
  // gets smaller from call to call.
  std::size_t behind(std::size_t end) {
    const std::size_t near = end - std::min(end, front_);
    if (near != 0) {
      places_ &= ~std::uint64_t{0} >> (mask_bytes - near);
      if (places_ != 0) return front_ + highest_place(places_) + 1;
    }
    return front_ == 0 ? 0 : behind_last_in_front(text_, std::min(end, front_), separator_);
  }

 private:
  const char* text_;
  std::size_t front_;
  char separator_;
  std::uint64_t places_;
};

// The core of both names. Output 1 takes the rightmost field; the last output takes the remainder
// and may be the text itself, which is then cut in place.
template <SeparatorRun run, std::size_t count>
inline void split_reverse(char* text, char separator, char* const (&outputs)[count]) {
  std::size_t end = std::strlen(text);
  LastSeparators separators(text, end, separator);
  std::size_t k = 0;
  while (k + 1 < count) {
    const std::size_t at = separators.behind(end);
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
