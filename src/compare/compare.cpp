// Equality of two texts. Where only a zero byte tells the end, the runtime's own comparisons do it,
// which are as wide as the processor allows and carry the locale's fold; of Strings what they have
// in common is passed first. A negative count turns into the largest one.
#include <algorithm>
#include <cstring>

#include "frame/locale_fold.h"
#include "scan/byte_mask.h"
#include "scan/same_bytes.h"
#include "scan/same_text.h"
#include "zeph.h"

#if __has_include(<strings.h>)
#include <strings.h>
#endif

namespace zeph {
namespace {

// Most texts that differ do so in their first byte, and then no service is called at all. The
// others fall through to it: on so short a way each jump counts.
bool first_bytes_differ(const char* a, const char* b) {
  return __builtin_expect(*a != *b, 0);
}

// Whether no locale folds the two first bytes alike: ASCII bytes, more than a case apart.
bool first_bytes_never_fold_alike(const char* a, const char* b) {
  const auto x = static_cast<unsigned char>(*a), y = static_cast<unsigned char>(*b);
  return __builtin_expect(((x ^ y) & ~0x20) != 0, 0) && (x | y) < 0x80;
}

bool equal(const char* a, const char* b) {
  if (first_bytes_differ(a, b)) return false;
  return std::strcmp(a, b) == 0;
}

bool equal_prefix(const char* a, const char* b, std::size_t limit) {
  if (__builtin_expect(limit != 0, 1) && first_bytes_differ(a, b)) return false;
  return std::strncmp(a, b, limit) == 0;
}

bool equal_folded(const char* a, const char* b) {
  if (first_bytes_never_fold_alike(a, b)) return false;
  return strcasecmp(a, b) == 0;
}

bool equal_folded_prefix(const char* a, const char* b, std::size_t limit) {
  if (__builtin_expect(limit != 0, 1) && first_bytes_never_fold_alike(a, b)) return false;
  return strncasecmp(a, b, limit) == 0;
}

// Where the texts of two Strings are told apart: what they have in common in front of that is
// passed in wide steps. None of the two ends there, so that what the service says holds for the
// whole.
template <typename EqualTexts>
[[gnu::noinline]] bool equal_far(const std::string& a, const std::string& b, std::size_t size_a,
                                 std::size_t size_b, EqualTexts equal_texts) {
  if (size_a == size_b && size_a <= short_range && byte_mask(a.data(), size_a, '\0') == 0)
    return false;
  return equal_texts(same_text(a.data(), b.data(), std::min(size_a, size_b)));
}

// The bytes up to the sizes count, of which equal_texts() knows. Short Strings take no call.
template <typename EqualTexts>
inline bool equal(const std::string& a, const std::string& b, std::size_t size_a,
                  std::size_t size_b, EqualTexts equal_texts) {
  if (__builtin_expect(size_a == size_b && size_a <= short_range, 1)) {
    const Likeness likeness = likeness_of_short_texts(a.data(), b.data(), size_a);
    if (likeness != Likeness::undecided) return likeness == Likeness::same;
  }
  return equal_far(a, b, size_a, size_b, equal_texts);
}

bool equal(const std::string& a, const std::string& b) {
  if (first_bytes_differ(a.c_str(), b.c_str())) return false;
  return equal(a, b, a.size(), b.size(), [&a, &b](std::size_t passed) {
    return std::strcmp(a.c_str() + passed, b.c_str() + passed) == 0;
  });
}

bool equal_prefix(const std::string& a, const std::string& b, std::size_t limit) {
  if (__builtin_expect(limit != 0, 1) && first_bytes_differ(a.c_str(), b.c_str())) return false;
  const std::size_t size_a = std::min(a.size(), limit), size_b = std::min(b.size(), limit);
  return equal(a, b, size_a, size_b, [&a, &b, limit](std::size_t passed) {
    return std::strncmp(a.c_str() + passed, b.c_str() + passed, limit - passed) == 0;
  });
}

// From here on the widest instructions make up for the question of the locale.
constexpr std::size_t long_text = 256;

template <typename EqualTexts>
[[gnu::noinline]] bool long_equal_folded(const std::string& a, const std::string& b,
                                         std::size_t size, EqualTexts equal_texts) {
  const bool ascii = locale_folds_ascii(LetterCase::lower);
  return equal_texts(ascii ? same_ascii_text(a.data(), b.data(), size) : 0);
}

// Short texts, which are most, go straight on.
template <typename EqualTexts>
bool equal_folded(const std::string& a, const std::string& b, std::size_t limit,
                  EqualTexts equal_texts) {
  const std::size_t size = std::min({a.size(), b.size(), limit});
  if (__builtin_expect(size >= long_text, 0)) return long_equal_folded(a, b, size, equal_texts);
  return equal_texts(0);
}

bool equal_folded(const std::string& a, const std::string& b) {
  if (first_bytes_never_fold_alike(a.c_str(), b.c_str())) return false;
  return equal_folded(a, b, a.size(), [&a, &b](std::size_t passed) {
    return strcasecmp(a.c_str() + passed, b.c_str() + passed) == 0;
  });
}

bool equal_folded_prefix(const std::string& a, const std::string& b, std::size_t limit) {
  if (limit != 0 && first_bytes_never_fold_alike(a.c_str(), b.c_str())) return false;
  return equal_folded(a, b, limit, [&a, &b, limit](std::size_t passed) {
    return strncasecmp(a.c_str() + passed, b.c_str() + passed, limit - passed) == 0;
  });
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Compare(const char* a, const char* b) {
  return zeph::equal(a, b);
}

bool Zeph_Compare(std::string& a, std::string& b) {
  return zeph::equal(a, b);
}

bool Zeph_Compare(const char* a, const char* b, int n) {
  return zeph::equal_prefix(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare(std::string& a, std::string& b, int n) {
  return zeph::equal_prefix(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare_L(const char* a, const char* b) {
  return zeph::equal_folded(a, b);
}

bool Zeph_Compare_L(std::string& a, std::string& b) {
  return zeph::equal_folded(a, b);
}

bool Zeph_Compare_L(const char* a, const char* b, int n) {
  return zeph::equal_folded_prefix(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare_L(std::string& a, std::string& b, int n) {
  return zeph::equal_folded_prefix(a, b, static_cast<std::size_t>(n));
}

}  // namespace Orbane
