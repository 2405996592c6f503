// What the two x86 paths share. Each function carries its instructions in its own attribute, so
// that nothing else in the program is built for a newer processor.
#ifndef ZEPH_CIPHER_AES_X86_H
#define ZEPH_CIPHER_AES_X86_H

#include <immintrin.h>

#include "cipher/aes.h"
#include "cipher/wipe.h"

namespace zeph {

[[gnu::target("aes")]] inline __m128i load_bytes(const unsigned char* from) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

[[gnu::target("aes")]] inline void store_bytes(unsigned char* to, __m128i bytes) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes);
}

// The round keys of `g_aes` in the order in which the instructions for deciphering want them:
// backwards, and all but the outer two as InvMixColumns leaves them. They are wiped with the
// object.
class InverseKeys {
 public:
  [[gnu::target("aes")]] InverseKeys() {
    const int rounds = g_aes.Nr;
    store_bytes(bytes_, load_bytes(g_aes.w + 16 * rounds));
    for (int i = 1; i < rounds; ++i) {
      store_bytes(bytes_ + 16 * i, _mm_aesimc_si128(load_bytes(g_aes.w + 16 * (rounds - i))));
    }
    store_bytes(bytes_ + 16 * rounds, load_bytes(g_aes.w));
  }
  ~InverseKeys() {
    // Key by key these are a few wide stores; of the whole, GCC would make a slow string store.
    for (std::size_t i = 0; i < sizeof bytes_; i += 16) wipe(bytes_ + i, 16);
  }
  InverseKeys(const InverseKeys&) = delete;
  InverseKeys& operator=(const InverseKeys&) = delete;

  const unsigned char* bytes() const {
    return bytes_;
  }

 private:
  unsigned char bytes_[sizeof g_aes.w];
};

// Leaves a finished block in the state of `g_aes`: it runs down the columns, the state row by row.
[[gnu::target("aes")]] inline void keep_state(const unsigned char* block) {
  __m128i bytes = load_bytes(block);
  bytes = _mm_unpacklo_epi8(bytes, _mm_srli_si128(bytes, 8));  // each byte and the eighth from it
  bytes = _mm_unpacklo_epi8(bytes, _mm_srli_si128(bytes, 8));  // and so each and the fourth
  store_bytes(g_aes.state, bytes);
}

// Deciphers with keys that are there.
void decrypt_blocks_x86(const InverseKeys& keys, const unsigned char* in, unsigned char* out,
                        std::size_t count);

}  // namespace zeph

#endif  // ZEPH_CIPHER_AES_X86_H
