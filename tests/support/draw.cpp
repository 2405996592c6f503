#include "support/draw.h"

#include <climits>
#include <cstring>

namespace zeph_test {

unsigned char Draw::byte() {
  if (endless_) return static_cast<unsigned char>(random_() >> 11);
  if (left_ == 0) return 0;
  --left_;
  return *bytes_++;
}

std::size_t Draw::below(std::size_t bound) {
  std::size_t value = byte();
  if (bound > 256) value = value << 8 | byte();
  return value % bound;
}

int Draw::between(int low, int high) {
  return low + static_cast<int>(below(static_cast<std::size_t>(high - low) + 1));
}

std::uint64_t Draw::word() {
  std::uint64_t word = 0;
  for (int i = 0; i < 8; ++i) word = word << 8 | byte();
  return word;
}

double Draw::real() {
  const std::uint64_t image = word();
  double value;
  std::memcpy(&value, &image, sizeof value);
  return value;
}

int Draw::any_int() {
  const int ends[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
  const std::size_t kind = below(4);
  if (kind == 1) return static_cast<int>(static_cast<std::uint32_t>(word()));
  return kind == 0 ? ends[below(7)] : between(-4, 70);
}

std::string Draw::text(std::size_t longest, std::string_view alphabet) {
  return filled(length_ ? *length_ : below(longest + 1), alphabet);
}

std::string Draw::piece(std::size_t longest, std::string_view alphabet) {
  return filled(below(longest + 1), alphabet);
}

std::string Draw::bytes(std::size_t longest) {
  std::string text(length_ ? *length_ : below(longest + 1), '\0');
  for (char& c : text) c = static_cast<char>(byte());
  return text;
}

std::string Draw::filled(std::size_t size, std::string_view alphabet) {
  std::string text(size, '\0');
  for (char& c : text) {
    const unsigned char drawn = byte();
    c = alphabet.empty() ? static_cast<char>(drawn == 0 ? ' ' : drawn)
                         : alphabet[drawn % alphabet.size()];
  }
  return text;
}

}  // namespace zeph_test
