#include "scan/find_needle.h"

#include <algorithm>
#include <cstring>

namespace zeph {
namespace {

using View = std::string_view;

// Where a needle is cut in two, and the period of its second half.
struct Factorization {
  std::size_t cut, period;
};

// The largest suffix of the needle in the order of the bytes, or in the reversed order.
Factorization largest_suffix(View needle, bool reversed) {
  std::size_t suffix = 0, candidate = 1, matched = 0, period = 1;
  while (candidate + matched < needle.size()) {
    const auto a = static_cast<unsigned char>(needle[candidate + matched]);
    const auto b = static_cast<unsigned char>(needle[suffix + matched]);
    if (a == b) {
      if (++matched == period) {
        candidate += period;
        matched = 0;
      }
    } else if ((a < b) != reversed) {
      candidate += matched + 1;
      matched = 0;
      period = candidate - suffix;
    } else {
      suffix = candidate++;
      matched = 0;
      period = 1;
    }
  }
  return {suffix, period};
}

Factorization factorize(View needle) {
  const Factorization up = largest_suffix(needle, false);
  const Factorization down = largest_suffix(needle, true);
  return up.cut > down.cut ? up : down;
}

}  // namespace

// The two-way search of Crochemore and Perrin: the half behind the cut is compared to the right,
// then the half in front of it to the left. A mismatch in the first shifts by what was compared, a
// mismatch in the second by the needle's period. A periodic needle remembers what a shift by its
// period leaves known, so that no byte is compared again and again.
std::size_t find_needle_portable(View haystack, View needle) {
  const std::size_t size = needle.size();
  const auto [cut, period] = factorize(needle);
  const bool periodic = needle.compare(0, cut, needle.substr(period), 0, cut) == 0;
  const std::size_t shift = periodic ? period : std::max(cut, size - cut) + 1;
  std::size_t known = 0;
  for (std::size_t at = 0; at + size <= haystack.size();) {
    const char* const here = haystack.data() + at;
    std::size_t i = std::max(cut, known);
    while (i < size && needle[i] == here[i]) ++i;
    if (i < size) {
      at += i - cut + 1;
      known = 0;
      continue;
    }
    i = cut;
    while (i > known && needle[i - 1] == here[i - 1]) --i;
    if (i <= known) return at;
    at += shift;
    known = periodic ? size - period : 0;
  }
  return View::npos;
}

std::size_t find_needle(View haystack, View needle) {
  if (needle.size() < 2) return haystack.find(needle);
#ifdef ZEPH_HAS_MEMMEM
  const void* const found = memmem(haystack.data(), haystack.size(), needle.data(), needle.size());
  if (!found) return View::npos;
  return static_cast<std::size_t>(static_cast<const char*>(found) - haystack.data());
#else
  return find_needle_portable(haystack, needle);
#endif
}

}  // namespace zeph
