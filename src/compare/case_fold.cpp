// The case of letters, in place or into a second buffer.
#include <cstring>

#include "frame/locale_fold.h"
#include "zeph.h"

namespace zeph {
namespace {

// Shorter texts are folded byte by byte in less time than it takes to look at the locale.
constexpr std::size_t worth_a_look = 12;

// `out` may be `from`.
void put_fold(LetterCase to, char* out, const char* from, std::size_t size) {
  if (size >= worth_a_look && locale_folds_ascii(to)) return put_ascii_fold(to, out, from, size);
  const LocaleFold fold(to);
  std::size_t i = 0;
  for (; size - i >= 4; i += 4) {
    const char a = fold(from[i]), b = fold(from[i + 1]);
    const char c = fold(from[i + 2]), d = fold(from[i + 3]);
    out[i] = a, out[i + 1] = b, out[i + 2] = c, out[i + 3] = d;
  }
  for (; i < size; ++i) out[i] = fold(from[i]);
}

void fold_text(LetterCase to, const char* source, char* target) {
  const std::size_t size = std::strlen(source);
  put_fold(to, target, source, size);
  target[size] = '\0';
}

void fold_string(LetterCase to, std::string& text) {
  put_fold(to, &text[0], text.data(), text.size());
}

void fold_string(LetterCase to, const std::string& source, std::string& target) {
  if (&source != &target) target.assign(source);
  fold_string(to, target);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

using zeph::LetterCase;

void Zeph_Lower(char* text) {
  zeph::fold_text(LetterCase::lower, text, text);
}

void Zeph_Lower(const char* source, char* target) {
  zeph::fold_text(LetterCase::lower, source, target);
}

void Zeph_Lower(std::string& text) {
  zeph::fold_string(LetterCase::lower, text);
}

void Zeph_Lower(const std::string& source, std::string& target) {
  zeph::fold_string(LetterCase::lower, source, target);
}

void Zeph_Upper(char* text) {
  zeph::fold_text(LetterCase::upper, text, text);
}

void Zeph_Upper(const char* source, char* target) {
  zeph::fold_text(LetterCase::upper, source, target);
}

void Zeph_Upper(std::string& text) {
  zeph::fold_string(LetterCase::upper, text);
}

void Zeph_Upper(const std::string& source, std::string& target) {
  zeph::fold_string(LetterCase::upper, source, target);
}

}  // namespace Orbane
