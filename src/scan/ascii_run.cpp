#include "scan/ascii_run.h"

#include <cstdint>
#include <cstring>

#include "scan/word.h"

#if defined(__SSE2__) && !defined(ZEPH_PORTABLE)
#include <emmintrin.h>
#define ZEPH_ASCII_RUN_SSE2
#endif

namespace zeph {
namespace {

constexpr std::uint64_t high_bits = 0x8080808080808080;

bool is_ascii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

bool has_room(const char* from, const char* end, std::size_t size) {
  return static_cast<std::size_t>(end - from) >= size;
}

}  // namespace

std::size_t ascii_run_portable(const char* text, const char* end) {
  const char* at = text;
  while (has_room(at, end, word_size) && (load_word(at) & high_bits) == 0) at += word_size;
  while (at != end && is_ascii(*at)) ++at;
  return static_cast<std::size_t>(at - text);
}

std::size_t copy_ascii_run_portable(char* to, const char* text, const char* end) {
  const std::size_t run = ascii_run_portable(text, end);
  std::memcpy(to, text, run);
  return run;
}

#ifdef ZEPH_ASCII_RUN_SSE2

namespace {

static_assert(ascii_step == sizeof(__m128i));

__m128i load_step(const char* from) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

// One bit for each byte of a step that is not ASCII.
unsigned other_bytes(__m128i step) {
  return static_cast<unsigned>(_mm_movemask_epi8(step));
}

std::size_t first_bit(unsigned bits) {
  return static_cast<std::size_t>(__builtin_ctz(bits));
}

void store_step(char* to, __m128i step) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(to), step);
}

constexpr std::size_t four_steps = 4 * ascii_step;

struct FourSteps {
  __m128i a, b, c, d;
};

FourSteps load_four_steps(const char* from) {
  return {load_step(from), load_step(from + ascii_step), load_step(from + 2 * ascii_step),
          load_step(from + 3 * ascii_step)};
}

void store_four_steps(char* to, const FourSteps& steps) {
  store_step(to, steps.a);
  store_step(to + ascii_step, steps.b);
  store_step(to + 2 * ascii_step, steps.c);
  store_step(to + 3 * ascii_step, steps.d);
}

bool is_ascii(const FourSteps& steps) {
  const __m128i front = _mm_or_si128(steps.a, steps.b), back = _mm_or_si128(steps.c, steps.d);
  return other_bytes(_mm_or_si128(front, back)) == 0;
}

// Four steps at once as long as they are ASCII: a long text is bound by how fast it can be loaded.
template <bool copy>
std::size_t four_steps_run(char* to, const char* text, const char* end) {
  const char* at = text;
  for (; has_room(at, end, four_steps); at += four_steps) {
    const FourSteps steps = load_four_steps(at);
    if (!is_ascii(steps)) break;
    if constexpr (copy) store_four_steps(to + (at - text), steps);
  }
  return static_cast<std::size_t>(at - text);
}

// One step first, because most runs are short.
template <bool copy>
std::size_t wide_run(char* to, const char* text, const char* end) {
  std::size_t run = 0;
  while (has_room(text + run, end, ascii_step)) {
    const __m128i step = load_step(text + run);
    if constexpr (copy) store_step(to + run, step);
    const unsigned others = other_bytes(step);
    if (others != 0) return run + first_bit(others);
    run += ascii_step;
    run += four_steps_run<copy>(copy ? to + run : nullptr, text + run, end);
  }
  if constexpr (copy) return run + copy_ascii_run_portable(to + run, text + run, end);
  return run + ascii_run_portable(text + run, end);
}

}  // namespace

std::size_t ascii_run(const char* text, const char* end) {
  return wide_run<false>(nullptr, text, end);
}

std::size_t copy_ascii_run(char* to, const char* text, const char* end) {
  return wide_run<true>(to, text, end);
}

#else

std::size_t ascii_run(const char* text, const char* end) {
  return ascii_run_portable(text, end);
}

std::size_t copy_ascii_run(char* to, const char* text, const char* end) {
  return copy_ascii_run_portable(to, text, end);
}

#endif

}  // namespace zeph
