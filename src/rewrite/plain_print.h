// Formats of the printf family printed without the runtime, where they say what most do.
#ifndef ZEPH_REWRITE_PLAIN_PRINT_H
#define ZEPH_REWRITE_PLAIN_PRINT_H

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstring>
#include <string>

#include "frame/put_integer.h"
#include "number/real_format.h"
#include "scan/move_bytes.h"

namespace zeph {

// Directives of %s, %d, %i, %u, %x, %X, %c, %f and %%; all but the last with '-', '0' and a
// width below 100, and of %s and %f with one digit of precision. What comes of all others is the
// runtime's to say, and of NULL for a text, a zero byte, and a directive behind the end of the
// result.
//
// The pieces are gathered in a near room. What does not fit there is moved on to the result, which
// a long text is appended to at once.
class PlainPrint {
 public:
  // A number may take some more: it is printed whole before it is cut.
  static constexpr std::size_t most_near = 2048, near_room = most_near + longest_real;

  // The result starts empty and takes at most so many bytes.
  PlainPrint(char* near, std::string& result, std::size_t most) : near_(near), result_(result) {
    set_near_room(most);
  }

  // False if the runtime has to print the format; some of it may be in the result. Inlined where
  // the room is an array, a hardened build would check it at each piece.
  [[gnu::noinline]] bool print(const char* format, std::va_list& arguments) {
    for (; *format != '\0'; ++format) {
      if (*format != '%' || *++format == '%') {
        put_literal(*format);
      } else if (cut_ || !put_directive(read_directive(format), arguments)) {
        return false;
      }
    }
    return true;
  }
  // What stands in the near room at the end belongs behind the result.
  char* end() const {
    return out_;
  }

 private:
  struct Directive {
    char kind;  // the zero byte where it is left to the runtime
    bool left = false, zeros = false;
    std::size_t width = 0;
    int precision = -1;
  };

  static bool is_digit(char byte) {
    return byte >= '0' && byte <= '9';
  }

  // Leaves `format` at the last byte of the directive.
  static Directive read_directive(const char*& format) {
    Directive directive{*format};
    if (directive.kind > '9') return directive;
    for (; *format == '-' || *format == '0'; ++format) {
      (*format == '-' ? directive.left : directive.zeros) = true;
    }
    for (int i = 0; i < 2 && is_digit(*format); ++i, ++format) {
      directive.width = directive.width * 10 + static_cast<std::size_t>(*format - '0');
    }
    if (*format == '.') {
      directive.precision = is_digit(*++format) ? *format++ - '0' : 0;
    }
    directive.kind = *format;
    return directive;
  }

  bool put_directive(const Directive& directive, std::va_list& arguments) {
    switch (directive.kind) {
      case 's':
        return put_text(directive, va_arg(arguments, const char*));
      case 'd':
      case 'i':
        return end_integer(directive, put_integer(out_, va_arg(arguments, int)));
      case 'u':
        return end_integer(directive, put_unsigned(out_, va_arg(arguments, unsigned)));
      case 'x':
        return end_integer(directive, put_hexadecimal(va_arg(arguments, unsigned)));
      case 'X':
        return end_upper_case(directive, put_hexadecimal(va_arg(arguments, unsigned)));
      case 'c':
        return put_byte(directive, static_cast<char>(va_arg(arguments, int)));
      case 'f':
        return put_real(directive, va_arg(arguments, double));
      default:
        return false;
    }
  }

  std::size_t near_size() const {
    return static_cast<std::size_t>(out_ - near_);
  }
  std::size_t left_near() const {
    return static_cast<std::size_t>(limit_ - out_);
  }
  // What the result still takes.
  std::size_t left() const {
    return left_near() + behind_;
  }

  void set_near_room(std::size_t left) {
    const std::size_t here = std::min(left, most_near);
    out_ = near_;
    limit_ = near_ + here;
    behind_ = left - here;
  }

  void put_literal(char byte) {
    if (out_ == limit_) return put_bytes(&byte, 1);
    *out_++ = byte;
  }

  void put_bytes(const char* bytes, std::size_t size) {
    if (size > left_near()) {
      if (behind_ > 0) return append(bytes, size);
      cut_ = true;
      size = left_near();
    }
    move_bytes(out_, bytes, size);
    out_ += size;
  }

  // What stands near and then these bytes, with room for what follows.
  [[gnu::noinline]] void append(const char* bytes, std::size_t size) {
    const std::size_t most = left();
    cut_ = size > most;
    size = std::min(size, most);
    const std::size_t next = std::min(most - size, most_near);
    const std::size_t needed = result_.size() + near_size() + size + next;
    if (needed > result_.capacity()) result_.reserve(std::max(needed, 2 * result_.capacity()));
    result_.append(near_, near_size()).append(bytes, size);
    set_near_room(most - size);
  }

  // No more of the text is read than the room tells apart.
  bool put_text(const Directive& directive, const char* text) {
    if (!text || directive.zeros) return false;
    std::size_t size;
    if (directive.precision >= 0) {
      size = strnlen(text, static_cast<std::size_t>(directive.precision));
    } else {
      size = strnlen(text, std::max(left() + 1, directive.width));
    }
    const std::size_t blanks = directive.width > size ? directive.width - size : 0;
    if (!directive.left) put_blanks(blanks);
    put_bytes(text, size);
    if (directive.left) put_blanks(blanks);
    return true;
  }

  bool put_byte(const Directive& directive, char byte) {
    if (byte == '\0' || directive.zeros || directive.precision >= 0) return false;
    *out_ = byte;
    return end_field(directive, out_ + 1);
  }

  char* put_hexadecimal(unsigned value) {
    return std::to_chars(out_, out_ + longest_real, value, 16).ptr;
  }

  // An integer that stands there in digits. Its precision is left to the runtime.
  bool end_integer(const Directive& directive, char* end) {
    return directive.precision < 0 ? end_field(directive, end) : false;
  }

  bool end_upper_case(const Directive& directive, char* end) {
    for (char* digit = out_; digit != end; ++digit) {
      if (*digit > '9') *digit = static_cast<char>(*digit - 'a' + 'A');
    }
    return end_integer(directive, end);
  }

  bool put_real(const Directive& directive, double value) {
    const int decimals = directive.precision < 0 ? 6 : directive.precision;
    char* const end = put_fixed_real(out_, value, decimals);
    return end ? end_field(directive, end) : false;
  }

  void put_blanks(std::size_t count) {
    for (; count > 0; --count) put_literal(' ');
  }

  // A byte or a number stands up to `end`, maybe behind the limit. It is given its width.
  bool end_field(const Directive& directive, char* end) {
    const auto size = static_cast<std::size_t>(end - out_);
    if (size < directive.width) {
      const std::size_t more = directive.width - size;
      if (directive.left) {
        std::memset(end, ' ', more);
      } else {
        char* const digits = out_ + (directive.zeros && *out_ == '-');
        move_bytes(digits + more, digits, static_cast<std::size_t>(end - digits));
        std::memset(digits, directive.zeros ? '0' : ' ', more);
      }
      end += more;
    }
    if (end > limit_) {
      put_bytes(out_, static_cast<std::size_t>(end - out_));
    } else {
      out_ = end;
    }
    return true;
  }

  char *near_, *out_, *limit_;
  std::size_t behind_;  // what the result takes behind the limit
  std::string& result_;
  bool cut_ = false;
};

}  // namespace zeph

#endif  // ZEPH_REWRITE_PLAIN_PRINT_H
