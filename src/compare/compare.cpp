// Equality of two texts. Where only a zero byte tells the end, the runtime's own comparisons do it,
// which are as wide as the processor allows and carry the locale's fold; Strings of one size are
// compared as a whole first. A negative count turns into the largest one.
#include <algorithm>
#include <cstring>

#include "scan/same_bytes.h"
#include "zeph.h"

#if __has_include(<strings.h>)
#include <strings.h>
#endif

namespace zeph {
namespace {

constexpr std::size_t no_limit = static_cast<std::size_t>(-1) / 2;

// Most texts that differ do so in their first byte, and then no service is called at all.
bool equal(const char* a, const char* b) {
  return *a == *b && std::strcmp(a, b) == 0;
}

bool equal_prefix(const char* a, const char* b, std::size_t limit) {
  if (limit != 0 && *a != *b) return false;
  return std::strncmp(a, b, limit) == 0;
}

// Whether no locale folds the two to the same byte: ASCII bytes, more than a case apart.
bool never_fold_alike(char a, char b) {
  const auto x = static_cast<unsigned char>(a), y = static_cast<unsigned char>(b);
  return (x | y) < 0x80 && ((x ^ y) & ~0x20) != 0;
}

bool equal_folded(const char* a, const char* b) {
  return !never_fold_alike(*a, *b) && strcasecmp(a, b) == 0;
}

bool equal_folded_prefix(const char* a, const char* b, std::size_t limit) {
  if (limit != 0 && never_fold_alike(*a, *b)) return false;
  return strncasecmp(a, b, limit) == 0;
}

// How much of a String is compared.
std::size_t compared(const std::string& text, std::size_t limit) {
  return std::min(text.size(), limit);
}

// Strings that differ as a whole are equal all the same if a zero byte ends both before.
bool equal(const std::string& a, const std::string& b, std::size_t limit) {
  const std::size_t size = compared(a, limit);
  if (limit != 0 && *a.c_str() != *b.c_str()) return false;
  if (size == compared(b, limit) && same_bytes(a.data(), b.data(), size)) return true;
  return limit == no_limit ? equal(a.c_str(), b.c_str())
                           : equal_prefix(a.c_str(), b.c_str(), limit);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Compare(const char* a, const char* b) {
  return zeph::equal(a, b);
}

bool Zeph_Compare(std::string& a, std::string& b) {
  return zeph::equal(a, b, zeph::no_limit);
}

bool Zeph_Compare(const char* a, const char* b, int n) {
  return zeph::equal_prefix(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare(std::string& a, std::string& b, int n) {
  return zeph::equal(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare_L(const char* a, const char* b) {
  return zeph::equal_folded(a, b);
}

bool Zeph_Compare_L(std::string& a, std::string& b) {
  return zeph::equal_folded(a.c_str(), b.c_str());
}

bool Zeph_Compare_L(const char* a, const char* b, int n) {
  return zeph::equal_folded_prefix(a, b, static_cast<std::size_t>(n));
}

bool Zeph_Compare_L(std::string& a, std::string& b, int n) {
  return zeph::equal_folded_prefix(a.c_str(), b.c_str(), static_cast<std::size_t>(n));
}

}  // namespace Orbane
