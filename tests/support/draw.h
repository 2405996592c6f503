// Arguments drawn from bytes, those of a fuzzer or an endless row of random ones.
//
//     Draw draw(7);                          // the row of seed 7
//     const std::string text = draw.text(40, ", a");
//     const int limit = draw.between(-1, 9);
#ifndef ZEPH_TESTS_SUPPORT_DRAW_H
#define ZEPH_TESTS_SUPPORT_DRAW_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace zeph_test {

class Draw {
 public:
  Draw(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), left_(size), endless_(false) {}
  explicit Draw(unsigned seed) : random_(seed), endless_(true) {}

  // From here on every text() and bytes() has this length.
  void fix_length(std::size_t length) {
    length_ = length;
  }

  unsigned char byte();                  // any; zero behind the end of a fuzzer's bytes
  std::size_t below(std::size_t bound);  // 0 to bound - 1; bound is at most 65536
  int between(int low, int high);        // both included, at most 65536 values
  int any_int();                         // a small one, one of 32 bits, or one at the range's ends
  std::uint64_t word();                  // any 64 bits
  double real();                         // of any 64 bits
  bool yes() {
    return byte() % 2 != 0;
  }

  // The text that a rule is about: at most `longest` bytes, or the fixed length. Over the alphabet,
  // if there is one; otherwise a text has any bytes but zero, and bytes() has any.
  std::string text(std::size_t longest, std::string_view alphabet = {});
  std::string bytes(std::size_t longest);
  // A needle, a value or a part beside it, whose length is never fixed.
  std::string piece(std::size_t longest, std::string_view alphabet = {});

 private:
  std::string filled(std::size_t size, std::string_view alphabet);

  const std::uint8_t* bytes_ = nullptr;
  std::size_t left_ = 0;
  std::minstd_rand random_;
  bool endless_;
  std::optional<std::size_t> length_;
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_DRAW_H
