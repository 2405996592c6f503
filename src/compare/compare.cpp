// Equality of two texts: the runtime's own comparisons, which are as wide as the processor allows
// and carry the locale's fold. A negative count turns into the largest one.
#include <cstring>

#include "zeph.h"

#if __has_include(<strings.h>)
#include <strings.h>
#endif

namespace zeph {
namespace {

// Most texts that differ do so in their first byte, and then no service is called at all.
bool equal(const char* a, const char* b) {
  return *a == *b && std::strcmp(a, b) == 0;
}

bool equal_prefix(const char* a, const char* b, int n) {
  return std::strncmp(a, b, static_cast<std::size_t>(n)) == 0;
}

bool equal_folded(const char* a, const char* b) {
  return strcasecmp(a, b) == 0;
}

bool equal_folded_prefix(const char* a, const char* b, int n) {
  return strncasecmp(a, b, static_cast<std::size_t>(n)) == 0;
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Compare(const char* a, const char* b) {
  return zeph::equal(a, b);
}

bool Zeph_Compare(std::string& a, std::string& b) {
  return zeph::equal(a.c_str(), b.c_str());
}

bool Zeph_Compare(const char* a, const char* b, int n) {
  return zeph::equal_prefix(a, b, n);
}

bool Zeph_Compare(std::string& a, std::string& b, int n) {
  return zeph::equal_prefix(a.c_str(), b.c_str(), n);
}

bool Zeph_Compare_L(const char* a, const char* b) {
  return zeph::equal_folded(a, b);
}

bool Zeph_Compare_L(std::string& a, std::string& b) {
  return zeph::equal_folded(a.c_str(), b.c_str());
}

bool Zeph_Compare_L(const char* a, const char* b, int n) {
  return zeph::equal_folded_prefix(a, b, n);
}

bool Zeph_Compare_L(std::string& a, std::string& b, int n) {
  return zeph::equal_folded_prefix(a.c_str(), b.c_str(), n);
}

}  // namespace Orbane
