// Where two bytes stand at fixed distances: the filter in front of a text search.
#ifndef ZEPH_SCAN_FIND_PAIR_H
#define ZEPH_SCAN_FIND_PAIR_H

#include <cstddef>

namespace zeph {

// A byte that has to stand `offset` bytes behind a place. The bits of `loose` do not count; they
// are set in `byte`, so that 0x20 beside 's' takes 'S' too.
struct Probe {
  std::size_t offset;
  char byte;
  char loose;
};

struct ProbePair {
  Probe a, b;
};

constexpr bool is_loose(const ProbePair& pair) {
  return (pair.a.loose | pair.b.loose) != 0;
}

// The first place from `from` on and below `count` where both probes meet their bytes; `count` if
// there is none. Readable is text[0] up to the highest probe of place count - 1, and nothing else
// is read.
std::size_t find_pair(const char* text, std::size_t from, std::size_t count, const ProbePair& pair);

// The twins; the baseline is what the compiler's target has. That of AVX2 needs a `count` of at
// least 32, and more than `from`.
std::size_t find_pair_portable(const char* text, std::size_t from, std::size_t count,
                               const ProbePair& pair);
std::size_t find_pair_baseline(const char* text, std::size_t from, std::size_t count,
                               const ProbePair& pair);
std::size_t find_pair_avx2(const char* text, std::size_t from, std::size_t count,
                           const ProbePair& pair);
std::size_t find_pair_avx512(const char* text, std::size_t from, std::size_t count,
                             const ProbePair& pair);

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_PAIR_H
