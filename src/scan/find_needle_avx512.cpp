// The search in a short text by one look: entered only where the processor has AVX-512.
#include "scan/byte_mask.h"
#include "scan/find_needle.h"
#include "scan/wide_avx512.h"

namespace zeph {

__attribute__((target("avx512bw"))) std::size_t find_short_needle_avx512(std::string_view haystack,
                                                                         std::string_view needle) {
  const std::size_t last = needle.size() - 1;
  const std::uint64_t lanes = few_lanes(haystack.size() - last);
  const __m512i head = _mm512_set1_epi8(needle[0]), tail = _mm512_set1_epi8(needle[last]);
  std::uint64_t places =
      _mm512_mask_cmpeq_epi8_mask(lanes, load_lanes(lanes, haystack.data()), head);
  places = _mm512_mask_cmpeq_epi8_mask(places, load_lanes(lanes, haystack.data() + last), tail);
  const std::uint64_t all = few_lanes(needle.size());
  for (; places != 0; places &= places - 1) {
    const std::size_t at = lowest_place(places);
    const __m512i here = load_lanes(all, haystack.data() + at);
    if (_mm512_cmpneq_epi8_mask(here, load_lanes(all, needle.data())) == 0) return at;
  }
  return std::string_view::npos;
}

}  // namespace zeph
