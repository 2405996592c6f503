// AES by the instructions that do a round of two blocks at once.
//
// Wider ones exist, but processors with both run them at the same pace, and these are on more.
#include "cipher/aes_paths.h"
#include "cipher/aes_x86.h"

namespace zeph {
namespace {

constexpr std::size_t lane_size = 2 * block_size;
constexpr std::size_t lanes = vaes_batch * block_size / lane_size;

[[gnu::target("vaes,avx2")]] inline __m256i load_lane(const unsigned char* from) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
}

[[gnu::target("vaes,avx2")]] inline void store_lane(unsigned char* to, __m256i lane) {
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), lane);
}

[[gnu::target("vaes,avx2")]] inline __m256i load_key_twice(const unsigned char* key) {
  return _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(key)));
}

struct Encipher {
  [[gnu::target("vaes,avx2")]] static __m256i round(__m256i lane, __m256i key) {
    return _mm256_aesenc_epi128(lane, key);
  }
  [[gnu::target("vaes,avx2")]] static __m256i last_round(__m256i lane, __m256i key) {
    return _mm256_aesenclast_epi128(lane, key);
  }
};

struct Decipher {
  [[gnu::target("vaes,avx2")]] static __m256i round(__m256i lane, __m256i key) {
    return _mm256_aesdec_epi128(lane, key);
  }
  [[gnu::target("vaes,avx2")]] static __m256i last_round(__m256i lane, __m256i key) {
    return _mm256_aesdeclast_epi128(lane, key);
  }
};

template <typename Direction>
[[gnu::target("vaes,avx2")]] void run_batch(const unsigned char* keys, const unsigned char* in,
                                            unsigned char* out) {
  __m256i batch[lanes];
  __m256i key = load_key_twice(keys);
  for (std::size_t i = 0; i < lanes; ++i) {
    batch[i] = _mm256_xor_si256(load_lane(in + i * lane_size), key);
  }
  const unsigned char* const last_key = keys + 16 * g_aes.Nr;
  for (keys += 16; keys != last_key; keys += 16) {
    key = load_key_twice(keys);
    for (__m256i& lane : batch) lane = Direction::round(lane, key);
  }
  key = load_key_twice(keys);
  for (std::size_t i = 0; i < lanes; ++i) {
    store_lane(out + i * lane_size, Direction::last_round(batch[i], key));
  }
}

// Does whole batches, of which there is at least one, and keeps the state that they leave. Returns
// the number of blocks done.
template <typename Direction>
[[gnu::target("vaes,avx2")]] std::size_t run_batches(const unsigned char* keys,
                                                     const unsigned char* in, unsigned char* out,
                                                     std::size_t count) {
  std::size_t done = 0;
  for (; count - done >= vaes_batch; done += vaes_batch) {
    run_batch<Direction>(keys, in + done * block_size, out + done * block_size);
  }
  keep_state(out + (done - 1) * block_size);
  return done;
}

}  // namespace

// The narrow path does what is left.

void encrypt_blocks_vaes(const unsigned char* in, unsigned char* out, std::size_t count) {
  const std::size_t done = count < vaes_batch ? 0 : run_batches<Encipher>(g_aes.w, in, out, count);
  encrypt_blocks_x86(in + done * block_size, out + done * block_size, count - done);
}

void decrypt_blocks_vaes(const unsigned char* in, unsigned char* out, std::size_t count) {
  if (count < vaes_batch) return decrypt_blocks_x86(in, out, count);
  const InverseKeys keys;
  const std::size_t done = run_batches<Decipher>(keys.bytes(), in, out, count);
  decrypt_blocks_x86(keys, in + done * block_size, out + done * block_size, count - done);
}

}  // namespace zeph
