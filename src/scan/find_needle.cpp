// A filter looks for places where two bytes of the needle meet; only there the needle is compared.
// Each false place teaches the filter the byte that told it apart, which takes the sting out of
// most repetitive texts. A budget on the false places keeps the rest linear: when it is spent, the
// two-way algorithm goes on.
#include "scan/find_needle.h"

#include <cstring>

#include "scan/ascii_fold.h"
#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/find_pair.h"
#include "scan/last_byte.h"
#include "scan/two_way.h"
#include "scan/wide.h"

namespace zeph {
namespace {

using View = std::string_view;

struct ExactFold {
  unsigned char operator()(char byte) const {
    return static_cast<unsigned char>(byte);
  }
  static Probe probe(View needle, std::size_t offset) {
    return {offset, needle[offset], 0};
  }
#ifdef ZEPH_SCAN_SSE2
  static __m128i wide(__m128i bytes) {
    return bytes;
  }
#endif
};

struct AsciiFold {
  unsigned char operator()(char byte) const {
    return static_cast<unsigned char>(ascii_fold(LetterCase::lower, byte));
  }
  static Probe probe(View needle, std::size_t offset) {
    const char lower = ascii_fold(LetterCase::lower, needle[offset]);
    const bool letter = ascii_fold(LetterCase::upper, lower) != lower;
    return {offset, lower, static_cast<char>(letter ? 0x20 : 0)};
  }
#ifdef ZEPH_SCAN_SSE2
  static __m128i wide(__m128i bytes) {
    return other_case_16(bytes, first_folded(LetterCase::lower));
  }
#endif
};

struct TableFold {
  const unsigned char* table;
  unsigned char operator()(char byte) const {
    return table[static_cast<unsigned char>(byte)];
  }
};

// How many bytes are equal in front of the first difference.
template <typename Fold>
std::size_t common_front(const char* a, const char* b, std::size_t size, Fold fold) {
  std::size_t i = 0;
#ifdef ZEPH_SCAN_SSE2
  for (; size - i >= 16; i += 16) {
    const __m128i equal = _mm_cmpeq_epi8(Fold::wide(load_16(a + i)), Fold::wide(load_16(b + i)));
    if (const unsigned others = bits_of(equal) ^ 0xFFFF) return i + lowest_bit(others);
  }
#endif
  while (i < size && fold(a[i]) == fold(b[i])) ++i;
  return i;
}

#ifdef ZEPH_SCAN_SSE2

// Whether from `half` to twice as many bytes are equal: the first and the last `half`.
template <std::size_t half, typename Fold>
bool ends_equal(const char* a, const char* b, std::size_t size, Fold) {
  const std::size_t tail = size - half;
  const auto equal = [=](std::size_t at) {
    return _mm_cmpeq_epi8(Fold::wide(load_first<half>(a + at)),
                          Fold::wide(load_first<half>(b + at)));
  };
  return bits_of(_mm_and_si128(equal(0), equal(tail))) == 0xFFFF;
}

// Whether ranges whose first bytes are equal are so as a whole. A few bytes take no loop.
template <typename Fold>
bool equal_behind_first(const char* a, const char* b, std::size_t size, Fold fold) {
  if (size >= 16) return common_front(a, b, size, fold) == size;
  if (size >= 8) return ends_equal<8>(a, b, size, fold);
  if (size >= 4) return ends_equal<4>(a, b, size, fold);
  return size < 2 || ends_equal<2>(a, b, size, fold);
}

#else

template <typename Fold>
bool equal_behind_first(const char* a, const char* b, std::size_t size, Fold fold) {
  return common_front(a, b, size, fold) == size;
}

#endif

// The cost of false places, in bytes compared: a place alone costs about as much as 128 of them,
// and 64 for each byte passed are what the two-way algorithm would have cost there.
class Budget {
 public:
  bool spent_by(std::size_t compared, std::size_t passed) {
    used_ += 128 + compared;
    return used_ / 64 > 128 + passed;
  }

 private:
  std::size_t used_ = 0;
};

// Tries the places from `from` on. The needle is not empty and no longer than the haystack.
template <typename Fold>
std::size_t find_filtered(View haystack, View needle, std::size_t from, Fold fold) {
  const std::size_t count = haystack.size() - needle.size() + 1;
  ProbePair pair{Fold::probe(needle, 0), Fold::probe(needle, needle.size() - 1)};
  Budget budget;
  for (std::size_t at = from;; ++at) {
    at = find_pair(haystack.data(), at, count, pair);
    if (at == count) return View::npos;
    const char* const here = haystack.data() + at;
    const std::size_t same = common_front(here, needle.data(), needle.size(), fold);
    if (same == needle.size()) return at;
    if (budget.spent_by(same, at - from)) {
      haystack.remove_prefix(at);
      const std::size_t found = find_two_way(haystack, needle, fold);
      return found == View::npos ? found : at + found;
    }
    pair = {pair.b, Fold::probe(needle, same)};
  }
}

// The places among up to 64 that meet a probe.
inline std::uint64_t places_of(const char* text, std::size_t count, Probe probe) {
  const char* const from = text + probe.offset;
  const std::uint64_t places = byte_mask(from, count, probe.byte);
  if (probe.loose == 0) return places;
  return places | byte_mask(from, count, static_cast<char>(probe.byte ^ probe.loose));
}

// All places where the two ends meet at once, of which there are at most 64.
template <typename Fold>
inline std::size_t find_in_mask(View haystack, View needle, Fold fold) {
  const std::size_t count = haystack.size() - needle.size() + 1, last = needle.size() - 1;
  std::uint64_t places = places_of(haystack.data(), count, Fold::probe(needle, 0));
  if (places != 0) places &= places_of(haystack.data(), count, Fold::probe(needle, last));
  for (; places != 0; places &= places - 1) {
    const std::size_t at = lowest_place(places);
    if (equal_behind_first(haystack.data() + at, needle.data(), last, fold)) return at;
  }
  return View::npos;
}

}  // namespace

std::size_t find_short_needle_baseline(View haystack, View needle) {
  return find_in_mask(haystack, needle, ExactFold());
}

namespace {

std::size_t find_short_needle(View haystack, View needle) {
#ifdef ZEPH_HAS_AVX512
  // Below, a load of 64 lanes would wait for what has just been stored behind the text.
  if (haystack.size() > 16 && has_avx512()) return find_short_needle_avx512(haystack, needle);
#endif
  return find_short_needle_baseline(haystack, needle);
}

// A search for one byte is the fastest there is: a rare first byte needs no more.
[[gnu::noinline]] std::size_t find_long_way(View haystack, View needle) {
  const std::size_t count = haystack.size() - needle.size() + 1;
  const char* const here = find_known_byte(haystack.data(), count, needle[0]);
  if (!here) return View::npos;
  const auto at = static_cast<std::size_t>(here - haystack.data());
  if (std::memcmp(here, needle.data(), needle.size()) == 0) return at;
  return find_filtered(haystack, needle, at + 1, ExactFold());
}

[[gnu::noinline]] std::size_t find_last_two_way(View haystack, View needle) {
  const std::size_t found = find_two_way(Backwards{haystack}, Backwards{needle}, ExactFold());
  return found == View::npos ? found : haystack.size() - needle.size() - found;
}

// The places in front of `left`. Apart, so that a search which the first place ends saves few
// registers.
[[gnu::noinline]] std::size_t find_last_filtered(View haystack, View needle, std::size_t left) {
  const std::size_t last = left;
  Budget budget;
  for (;;) {
    left = behind_last(haystack.data(), left, needle[0]);
    if (left == 0) return View::npos;
    const std::size_t at = --left;
    const std::size_t same =
        common_front(haystack.data() + at, needle.data(), needle.size(), ExactFold());
    if (same == needle.size()) return at;
    if (!budget.spent_by(same, last - at)) continue;
    return find_last_two_way(haystack.substr(0, at + needle.size() - 1), needle);
  }
}

}  // namespace

// In a short text the runtime's call costs more than it finds, and no register is saved for it.
std::size_t find_needle(View haystack, View needle) {
  if (needle.empty()) return 0;
  if (needle.size() > haystack.size()) return View::npos;
  if (haystack.size() <= mask_bytes) return find_short_needle(haystack, needle);
  return find_long_way(haystack, needle);
}

std::size_t find_last_needle(View haystack, View needle) {
  if (needle.empty()) return haystack.size();
  if (needle.size() > haystack.size()) return View::npos;
  const std::size_t places = haystack.size() - needle.size() + 1;
  const std::size_t behind = behind_last(haystack.data(), places, needle[0]);
  if (behind == 0) return View::npos;
  const char* const here = haystack.data() + (behind - 1);
  if (equal_behind_first(here, needle.data(), needle.size(), ExactFold())) return behind - 1;
  return find_last_filtered(haystack, needle, behind - 1);
}

std::size_t find_needle_ignoring_case(View haystack, View needle) {
  if (needle.empty()) return 0;
  if (needle.size() > haystack.size()) return View::npos;
  if (haystack.size() <= mask_bytes) return find_in_mask(haystack, needle, AsciiFold());
  return find_filtered(haystack, needle, 0, AsciiFold());
}

std::size_t find_needle_by_table(View haystack, View needle, const unsigned char* table) {
  return needle.empty() ? 0 : find_two_way(haystack, needle, TableFold{table});
}

std::size_t find_needle_portable(View haystack, View needle) {
  return needle.empty() ? 0 : find_two_way(haystack, needle, ExactFold());
}

}  // namespace zeph
