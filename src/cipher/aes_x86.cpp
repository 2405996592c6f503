// AES by the processor's AES instructions. One round of a block waits for the one before, so
// several blocks are in flight at once.
#include "cipher/aes_x86.h"

#include <cstring>

#include "cipher/aes_paths.h"

namespace zeph {
namespace {

// The directions: which round keys, which instructions.

class Encipher {
 public:
  [[gnu::target("aes")]] static __m128i round(__m128i block, __m128i key) {
    return _mm_aesenc_si128(block, key);
  }
  [[gnu::target("aes")]] static __m128i last_round(__m128i block, __m128i key) {
    return _mm_aesenclast_si128(block, key);
  }
  [[gnu::target("aes")]] __m128i outer_key(int i) const {
    return load_bytes(g_aes.w + 16 * i);
  }
  [[gnu::target("aes")]] __m128i inner_key(int i) const {
    return outer_key(i);
  }
};

class Decipher {
 public:
  [[gnu::target("aes")]] static __m128i round(__m128i block, __m128i key) {
    return _mm_aesdec_si128(block, key);
  }
  [[gnu::target("aes")]] static __m128i last_round(__m128i block, __m128i key) {
    return _mm_aesdeclast_si128(block, key);
  }
};

// Turns each round key when it is due: the better way for a few blocks.
class DecipherFew : public Decipher {
 public:
  [[gnu::target("aes")]] __m128i outer_key(int i) const {
    return load_bytes(g_aes.w + 16 * (g_aes.Nr - i));
  }
  [[gnu::target("aes")]] __m128i inner_key(int i) const {
    return _mm_aesimc_si128(outer_key(i));
  }
};

// Has all round keys turned.
class DecipherMany : public Decipher {
 public:
  explicit DecipherMany(const InverseKeys& keys) : keys_(keys.bytes()) {}

  [[gnu::target("aes")]] __m128i outer_key(int i) const {
    return load_bytes(keys_ + 16 * i);
  }
  [[gnu::target("aes")]] __m128i inner_key(int i) const {
    return outer_key(i);
  }

 private:
  const unsigned char* keys_;
};

template <std::size_t lanes, typename Direction>
[[gnu::target("aes")]] void run_lanes(const Direction& direction, const unsigned char* in,
                                      unsigned char* out) {
  const int rounds = g_aes.Nr;
  __m128i blocks[lanes];
  __m128i key = direction.outer_key(0);
  for (std::size_t i = 0; i < lanes; ++i) {
    blocks[i] = _mm_xor_si128(load_bytes(in + i * block_size), key);
  }
  const auto inner_round = [&](int r) __attribute__((target("aes"), always_inline)) {
    key = direction.inner_key(r);
    for (__m128i& block : blocks) block = Direction::round(block, key);
  };
  // Keys of any size have these rounds: the compiler unrolls them, which few blocks gain by.
  for (int r = 1; r < 10; ++r) inner_round(r);
  for (int r = 10; r < rounds; ++r) inner_round(r);
  key = direction.outer_key(rounds);
  for (std::size_t i = 0; i < lanes; ++i) {
    store_bytes(out + i * block_size, Direction::last_round(blocks[i], key));
  }
}

constexpr std::size_t most_lanes = 8;

template <typename Direction>
[[gnu::target("aes")]] void run_blocks(const Direction& direction, const unsigned char* in,
                                       unsigned char* out, std::size_t count) {
  const auto step = [&](std::size_t blocks) {
    in += blocks * block_size;
    out += blocks * block_size;
  };
  for (; count >= most_lanes; count -= most_lanes) {
    run_lanes<most_lanes>(direction, in, out);
    step(most_lanes);
  }
  if (count & 4) run_lanes<4>(direction, in, out), step(4);
  if (count & 2) run_lanes<2>(direction, in, out), step(2);
  if (count & 1) run_lanes<1>(direction, in, out), step(1);
  keep_state(out - block_size);
}

// Key words by the processor's own means.
struct X86Words {
  static std::uint32_t load(const unsigned char* bytes) {
    std::uint32_t word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
  }
  static void store(unsigned char* bytes, std::uint32_t word) {
    std::memcpy(bytes, &word, sizeof word);
  }
  // By the instruction of the last round, so that no load depends on the key: all columns are the
  // word, which the shifted rows do not change. The instruction that is made for key words takes
  // longer.
  [[gnu::target("aes")]] static std::uint32_t substitute(std::uint32_t word) {
    const __m128i words = _mm_set1_epi32(static_cast<int>(word));
    const __m128i substituted = _mm_aesenclast_si128(words, _mm_setzero_si128());
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(substituted));
  }
};

// The last of four words in all columns, substituted as above.
[[gnu::target("aes")]] inline __m128i substituted_last(__m128i words) {
  return _mm_aesenclast_si128(_mm_shuffle_epi32(words, 0xFF), _mm_setzero_si128());
}

// The same for the first word of a turn: its bytes rotated, and the turn's constant.
[[gnu::target("aes")]] inline __m128i turned_last(__m128i words, int turn) {
  const __m128i last = substituted_last(words);
  const __m128i rotated = _mm_or_si128(_mm_srli_epi32(last, 8), _mm_slli_epi32(last, 24));
  return _mm_xor_si128(rotated, _mm_set1_epi32(static_cast<int>(Rcon[turn])));
}

// Four words from those a key's length before: each takes in `mixed` and all in front of it.
[[gnu::target("aes")]] inline __m128i next_words(__m128i words, __m128i mixed) {
  words = _mm_xor_si128(words, _mm_slli_si128(words, 4));
  words = _mm_xor_si128(words, _mm_slli_si128(words, 8));
  return _mm_xor_si128(words, mixed);
}

// A key of eight words, four at once: they stay in two registers from the first to the last.
[[gnu::target("aes")]] void expand_eight_words(AesContext& context) {
  __m128i front = load_bytes(context.key), back = load_bytes(context.key + 16);
  unsigned char* out = context.w;
  for (int turn = 1; turn <= 7; ++turn, out += 32) {
    store_bytes(out, front);
    store_bytes(out + 16, back);
    front = next_words(front, turned_last(back, turn));
    back = next_words(back, substituted_last(front));
  }
  store_bytes(out, front);
}

}  // namespace

[[gnu::target("aes")]] void expand_key_x86(AesContext& context) {
  if (context.Nk == 8) return expand_eight_words(context);
  context.ExpandKey<X86Words>();
}

void encrypt_blocks_x86(const unsigned char* in, unsigned char* out, std::size_t count) {
  if (count != 0) run_blocks(Encipher(), in, out, count);
}

void decrypt_blocks_x86(const InverseKeys& keys, const unsigned char* in, unsigned char* out,
                        std::size_t count) {
  if (count != 0) run_blocks(DecipherMany(keys), in, out, count);
}

void decrypt_blocks_x86(const unsigned char* in, unsigned char* out, std::size_t count) {
  if (count > most_lanes) {
    decrypt_blocks_x86(InverseKeys(), in, out, count);
  } else if (count != 0) {
    run_blocks(DecipherFew(), in, out, count);
  }
}

}  // namespace zeph
