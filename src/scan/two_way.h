// String matching in linear time and constant space: the two-way algorithm of M. Crochemore and
// D. Perrin, "Two-way string-matching", Journal of the ACM 38 (1991). `fold` gives what counts of a
// byte, as an unsigned char.
#ifndef ZEPH_SCAN_TWO_WAY_H
#define ZEPH_SCAN_TWO_WAY_H

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zeph {

// A text read from its end, so that the first match is the last one of the text.
struct Backwards {
  std::string_view text;

  std::size_t size() const {
    return text.size();
  }
  char operator[](std::size_t i) const {
    return text[text.size() - 1 - i];
  }
};

// Where a needle is cut in two, and the period of its second half.
struct Factorization {
  std::size_t cut, period;
};

enum class SuffixOrder { rising, falling };

// The largest suffix of the needle in the order of the bytes, or in the reversed order.
template <typename Text, typename Fold>
Factorization largest_suffix(Text needle, SuffixOrder order, Fold fold) {
  std::size_t suffix = 0, candidate = 1, matched = 0, period = 1;
  while (candidate + matched < needle.size()) {
    const unsigned char a = fold(needle[candidate + matched]);
    const unsigned char b = fold(needle[suffix + matched]);
    if (a == b) {
      if (++matched == period) {
        candidate += period;
        matched = 0;
      }
    } else if ((a < b) == (order == SuffixOrder::rising)) {
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

template <typename Text, typename Fold>
Factorization factorize(Text needle, Fold fold) {
  const Factorization up = largest_suffix(needle, SuffixOrder::rising, fold);
  const Factorization down = largest_suffix(needle, SuffixOrder::falling, fold);
  return up.cut > down.cut ? up : down;
}

// The half behind the cut is compared to the right, then the half in front of it to the left. A
// mismatch in the first shifts by what was compared, a mismatch in the second by the needle's
// period. A periodic needle remembers what a shift by its period leaves known, so that no byte is
// compared again and again. The needle is not empty. A Text has size() and an operator[].
template <typename Text, typename Fold>
std::size_t find_two_way(Text haystack, Text needle, Fold fold) {
  const std::size_t size = needle.size();
  const auto [cut, period] = factorize(needle, fold);
  const auto same = [fold](char a, char b) { return fold(a) == fold(b); };
  std::size_t repeated = 0;
  while (repeated < cut && same(needle[repeated], needle[repeated + period])) ++repeated;
  const bool periodic = repeated == cut;
  const std::size_t shift = periodic ? period : std::max(cut, size - cut) + 1;
  std::size_t known = 0;
  for (std::size_t at = 0; at + size <= haystack.size();) {
    std::size_t i = std::max(cut, known);
    while (i < size && same(needle[i], haystack[at + i])) ++i;
    if (i < size) {
      at += i - cut + 1;
      known = 0;
      continue;
    }
    i = cut;
    while (i > known && same(needle[i - 1], haystack[at + i - 1])) --i;
    if (i <= known) return at;
    at += shift;
    known = periodic ? size - period : 0;
  }
  return std::string_view::npos;
}

}  // namespace zeph

#endif  // ZEPH_SCAN_TWO_WAY_H
