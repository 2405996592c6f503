// Alarm texts of two halves around a '|', joined half by half.
#include <cstring>
#include <string_view>

#include "frame/fixed_buffers.h"
#include "scan/find_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

constexpr char between_halves = '|';
constexpr std::size_t longest_result = 511;

// A half longer than the longest result fills it, so that neither more of it nor anything behind it
// matters: nothing is read further than that.
struct Halves {
  View first, second;
};

Halves halves_of(const char* text) {
  const char* const end = find_byte_or_end(text, between_halves, longest_result);
  const View first(text, static_cast<std::size_t>(end - text));
  if (first.size() == longest_result || *end == '\0') return {first, first};
  const View second(end + 1, strnlen(end + 1, longest_result));
  return {first, second.empty() ? first : second};
}

// The result in the making; what does not fit is dropped.
class JoinedText {
 public:
  void put(char byte) {
    put(View(&byte, 1));
  }
  void put(View bytes) {
    size_ += bytes.copy(bytes_ + size_, longest_result - size_);
  }
  void copy_to(char* out) const {
    put_text(out, bytes_, size_);
  }

 private:
  char bytes_[longest_result];
  std::size_t size_ = 0;
};

// All texts are read before the result is written: the first one is where it goes.
template <typename... Texts>
void join_alarm_texts(char* first, Texts... others) {
  const Halves texts[] = {halves_of(first), halves_of(others)...};
  JoinedText joined;
  for (const Halves& text : texts) {
    if (&text != texts) joined.put(' ');
    joined.put(text.first);
  }
  joined.put(between_halves);
  for (const Halves& text : texts) {
    if (&text != texts) joined.put(' ');
    joined.put(text.second);
  }
  joined.copy_to(first);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2) {
  zeph::join_alarm_texts(text1, text2);
}

void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3) {
  zeph::join_alarm_texts(text1, text2, text3);
}

void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                   const char* text4) {
  zeph::join_alarm_texts(text1, text2, text3, text4);
}

void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                   const char* text4, const char* text5) {
  zeph::join_alarm_texts(text1, text2, text3, text4, text5);
}

void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                   const char* text4, const char* text5, const char* text6) {
  zeph::join_alarm_texts(text1, text2, text3, text4, text5, text6);
}

}  // namespace Orbane
