#include "scan/other_byte.h"

#include "scan/wide.h"

namespace zeph {

std::size_t run_at_front_portable(const char* text, std::size_t size, char byte) {
  std::size_t run = 0;
  while (run < size && text[run] == byte) ++run;
  return run;
}

std::size_t run_at_back_portable(const char* text, std::size_t size, char byte) {
  std::size_t run = 0;
  while (run < size && text[size - 1 - run] == byte) ++run;
  return run;
}

#ifdef ZEPH_SCAN_SSE2

namespace {

constexpr std::size_t step = 16;
constexpr std::size_t stride = 4 * step;

// One bit for each of 16 bytes that is not the given one.
unsigned others(const char* from, __m128i byte) {
  return bits_of(_mm_cmpeq_epi8(load_16(from), byte)) ^ 0xFFFF;
}

// Four steps at once: a long run is bound by how fast it can be loaded.
bool all_same(const char* from, __m128i byte) {
  const auto same = [=](std::size_t at) { return _mm_cmpeq_epi8(load_16(from + at), byte); };
  const __m128i front = _mm_and_si128(same(0), same(step));
  const __m128i back = _mm_and_si128(same(2 * step), same(3 * step));
  return bits_of(_mm_and_si128(front, back)) == 0xFFFF;
}

}  // namespace

std::size_t long_run_at_front(const char* text, std::size_t size, char byte) {
  std::size_t run = near_run;
  const __m128i same = all_16(byte);
  while (size - run >= stride && all_same(text + run, same)) run += stride;
  for (; size - run >= step; run += step) {
    if (const unsigned bits = others(text + run, same)) return run + lowest_bit(bits);
  }
  return run + run_at_front_portable(text + run, size - run, byte);
}

std::size_t long_run_at_back(const char* text, std::size_t size, char byte) {
  const __m128i same = all_16(byte);
  std::size_t left = size - near_run;
  while (left >= stride && all_same(text + left - stride, same)) left -= stride;
  for (; left >= step; left -= step) {
    if (const unsigned bits = others(text + left - step, same)) {
      return size - left + (step - 1 - highest_bit(bits));
    }
  }
  return size - left + run_at_back_portable(text, left, byte);
}

#else

std::size_t long_run_at_front(const char* text, std::size_t size, char byte) {
  return run_at_front_portable(text, size, byte);
}

std::size_t long_run_at_back(const char* text, std::size_t size, char byte) {
  return run_at_back_portable(text, size, byte);
}

#endif

}  // namespace zeph
