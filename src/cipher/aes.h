// The block cipher AES (FIPS 197) with keys of 16, 24 and 32 bytes, held in one process-wide
// object.
//
// Everything but the expansion of keys works on `g_aes`: it takes the key that the object holds at
// that moment and leaves the last block's result in the object's `state`. There is no lock; the
// caller of the library serialises.
#ifndef ZEPH_CIPHER_AES_H
#define ZEPH_CIPHER_AES_H

#include <cstddef>
#include <cstdint>

#include "cipher/aes_tables.h"

namespace zeph {

constexpr std::size_t block_size = 16;

class AesContext {
 public:
  // The 4 by 4 matrix of the standard, row by row: s[r, c] stands at 4 * r + c. A block of text
  // runs down the columns, so that it is not a copy of these bytes.
  unsigned char state[block_size];
  std::int32_t Nb;        // columns of the state, always 4
  std::int32_t Nk;        // words of the key: 4, 6 or 8
  std::int32_t Nr;        // rounds: 10, 12 or 14
  unsigned char key[32];  // the first 4 * Nk bytes count
  unsigned char w[240];   // the key of round r is the 16 bytes from 16 * r; zero behind the last

  // Fills `w` from `key`, `Nk` and `Nr`. Each word is made in its place, so that no byte of the key
  // is left anywhere else. `Words` loads and stores words, as numbers whose lowest byte is the
  // first, and gives the S-box's bytes for the four of a word. Inlined, as it takes on the
  // instructions of its caller then.
  template <typename Words>
  [[gnu::always_inline]] constexpr void ExpandKey();

  // The same by plain loads, on every processor.
  constexpr void KeyExpansion();
};

// Starts out with the default key, as a constant: nothing runs at load. Its life ends with the
// process, and nothing wipes it.
extern AesContext g_aes;

// Fills the round keys of a context from its key, in the best way that the processor has.
void ExpandKey(AesContext& context);

// Enciphers or deciphers `count` blocks, each by itself; 0 does nothing. `in` and `out` may be the
// same place; otherwise they do not overlap.
void EncryptBlocks(const unsigned char* in, unsigned char* out, std::size_t count);
void DecryptBlocks(const unsigned char* in, unsigned char* out, std::size_t count);

inline void EncryptBlock(const unsigned char* in, unsigned char* out) {
  EncryptBlocks(in, out, 1);
}
inline void DecryptBlock(const unsigned char* in, unsigned char* out) {
  DecryptBlocks(in, out, 1);
}

template <typename Words>
constexpr void AesContext::ExpandKey() {
  const int key_words = Nk, words = 4 * Nr + 4;
  // All 32 bytes; for a shorter key the words behind it are made below.
  for (std::size_t i = 0; i < sizeof key; i += 4) Words::store(w + i, Words::load(key + i));
  std::uint32_t word = Words::load(key + 4 * (key_words - 1));
  int place = 0, turn = 1;  // of the word among Nk of them, and the number of these
  for (int i = key_words; i < words; ++i) {
    if (place == 0) word = Words::substitute(word >> 8 | word << 24) ^ Rcon[turn++];
    if (place == 4 && key_words > 6) word = Words::substitute(word);
    word ^= Words::load(w + 4 * (i - key_words));
    Words::store(w + 4 * i, word);
    if (++place == key_words) place = 0;
  }
  for (unsigned char* byte = w + 4 * words; byte != w + sizeof w; ++byte) *byte = 0;
}

// On every processor; the S-box as a table means loads that depend on the key.
struct PlainWords {
  static constexpr std::uint32_t load(const unsigned char* bytes) {
    std::uint32_t word = 0;
    for (int k = 0; k < 4; ++k) word |= static_cast<std::uint32_t>(bytes[k]) << 8 * k;
    return word;
  }
  static constexpr void store(unsigned char* bytes, std::uint32_t word) {
    for (int k = 0; k < 4; ++k) bytes[k] = static_cast<unsigned char>(word >> 8 * k);
  }
  static constexpr std::uint32_t substitute(std::uint32_t word) {
    std::uint32_t substituted = 0;
    for (int k = 0; k < 4; ++k) {
      substituted |= static_cast<std::uint32_t>(sbox[word >> 8 * k & 0xFF]) << 8 * k;
    }
    return substituted;
  }
};

constexpr void AesContext::KeyExpansion() {
  ExpandKey<PlainWords>();
}

}  // namespace zeph

#endif  // ZEPH_CIPHER_AES_H
