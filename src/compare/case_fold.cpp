// The case of letters, in place or into a second buffer.
#include <cstring>

#include "frame/locale_fold.h"
#include "zeph.h"

namespace zeph {
namespace {

// In a shorter text each byte is looked up in less time than it takes to look at the whole table.
constexpr std::size_t worth_a_look = 12;

// The locale of nearly every process, found out by its name alone.
bool in_c_locale() {
  return __builtin_expect(std::strcmp(fold_locale_name(), "C") == 0, 1);
}

// `out` may be `from`, here and below.
[[gnu::noinline]] void put_long_ascii_fold(LetterCase to, char* out, const char* from,
                                           std::size_t size) {
  put_ascii_fold(to, out, from, size);
}

[[gnu::noinline]] void put_locale_fold(LetterCase to, char* out, const char* from,
                                       std::size_t size) {
  const bool ascii = size >= worth_a_look && all_fold_as_ascii(to);
  if (ascii) return put_long_ascii_fold(to, out, from, size);
  const LocaleFold fold(to);
  for (std::size_t i = 0; i < size; ++i) out[i] = fold(from[i]);
}

[[gnu::always_inline]] inline void put_c_locale_fold(LetterCase to, char* out, const char* from,
                                                     std::size_t size) {
  // A text that has just been written is read in pieces as wide as those it was written in.
  if (__builtin_expect(size > 64, 0)) return put_long_ascii_fold(to, out, from, size);
  put_ascii_fold_baseline(to, out, from, size);
}

[[gnu::noinline]] void fold_text_by_locale(LetterCase to, const char* source, char* target) {
  const std::size_t size = std::strlen(source);
  target[size] = '\0';
  put_locale_fold(to, target, source, size);
}

// The locale first: what is known of the text then need not be kept over that call.
[[gnu::always_inline]] inline void fold_text(LetterCase to, const char* source, char* target) {
  if (!in_c_locale()) return fold_text_by_locale(to, source, target);
  const std::size_t size = std::strlen(source);
  target[size] = '\0';
  put_c_locale_fold(to, target, source, size);
}

[[gnu::noinline]] void fold_short_text(LetterCase to, char* text, std::size_t size) {
  const LocaleFold fold(to);
  for (std::size_t i = 0; i < size; ++i) text[i] = fold(text[i]);
}

// In place. Such a text has often just been written: a wide load that looks for its end has to wait
// until all narrower stores are through, while single bytes are handed over at once.
[[gnu::always_inline]] inline void fold_text(LetterCase to, char* text) {
  for (std::size_t size = 0; size < worth_a_look; ++size) {
    if (text[size] == '\0') return fold_short_text(to, text, size);
  }
  if (!in_c_locale()) return fold_text_by_locale(to, text, text);
  const std::size_t size = std::strlen(text);
  put_c_locale_fold(to, text, text, size);
}

void fold_string(LetterCase to, std::string& text) {
  if (!in_c_locale()) return put_locale_fold(to, &text[0], text.data(), text.size());
  put_c_locale_fold(to, &text[0], text.data(), text.size());
}

void fold_string(LetterCase to, const std::string& source, std::string& target) {
  if (source.size() > target.size()) {
    target.assign(source);
  } else {
    target.erase(source.size());
  }
  if (!in_c_locale()) return put_locale_fold(to, &target[0], source.data(), source.size());
  put_c_locale_fold(to, &target[0], source.data(), source.size());
}

}  // namespace
}  // namespace zeph

namespace Orbane {

using zeph::LetterCase;

void Zeph_Lower(char* text) {
  zeph::fold_text(LetterCase::lower, text);
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
  zeph::fold_text(LetterCase::upper, text);
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
