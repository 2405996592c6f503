// Alarm texts of two halves around a '|', joined half by half.
#include <algorithm>
#include <cstring>

#include "frame/fixed_buffers.h"
#include "scan/find_byte.h"
#include "scan/move_bytes.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char between_halves = '|';
constexpr std::size_t longest_result = 511, most_texts = 6;

// The result in the making. Of a half no more is read than there is room for, and nothing at all of
// those behind the one that fills it.
class JoinedText {
 public:
  JoinedText(char* out, std::size_t room) : out_(out), limit_(out + room) {}

  // Inlined where the room is an array, a hardened build would check it at each piece.
  [[gnu::noinline]] char* join(const char* const* texts, std::size_t count) {
    const char* first_ends[most_texts];
    for (std::size_t i = 0; i < count; ++i) {
      if (i > 0) put(' ');
      if (full()) return out_;
      first_ends[i] = put_first_half(texts[i]);
    }
    put(between_halves);
    for (std::size_t i = 0; i < count; ++i) {
      if (i > 0) put(' ');
      if (full()) return out_;
      put_second_half(texts[i], first_ends[i]);
    }
    return out_;
  }

 private:
  bool full() const {
    return out_ == limit_;
  }
  std::size_t room() const {
    return static_cast<std::size_t>(limit_ - out_);
  }

  void put(char byte) {
    if (!full()) *out_++ = byte;
  }
  void put(const char* bytes, std::size_t size) {
    size = std::min(size, room());
    move_bytes(out_, bytes, size);
    out_ += size;
  }

  const char* put_first_half(const char* text) {
    const char* const end = find_byte_or_end(text, between_halves, room(), longest_result);
    put(text, static_cast<std::size_t>(end - text));
    return end;
  }
  void put_second_half(const char* text, const char* first_end) {
    const std::size_t size = *first_end == '\0' ? 0 : strnlen(first_end + 1, room());
    if (size > 0) {
      put(first_end + 1, size);
    } else {
      put(text, static_cast<std::size_t>(first_end - text));
    }
  }

  char *out_, *limit_;
};

// All texts are read before the result is written: the first one is where it goes.
template <typename... Texts>
void join_alarm_texts(char* first, Texts... others) {
  const char* const texts[] = {first, others...};
  char joined[longest_result];
  const char* const end = JoinedText(joined, longest_result).join(texts, 1 + sizeof...(others));
  put_text(first, joined, static_cast<std::size_t>(end - joined));
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
