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
  // is left anywhere else. `substitute` puts the S-box's bytes in place of the four of a word.
  template <typename Substitute>
  constexpr void ExpandKey(Substitute substitute);

  // The same by the S-box as a table: loads that depend on the key.
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

template <typename Substitute>
constexpr void AesContext::ExpandKey(Substitute substitute) {
  for (unsigned char& byte : w) byte = 0;
  for (int i = 0; i < 4 * Nk; ++i) w[i] = key[i];
  for (int i = Nk; i < 4 * Nr + 4; ++i) {
    unsigned char* const word = w + 4 * i;
    const unsigned char* const before = word - 4;
    const bool turns = i % Nk == 0;
    const bool substitutes = turns || (Nk > 6 && i % Nk == 4);
    for (int k = 0; k < 4; ++k) word[k] = before[turns ? (k + 1) % 4 : k];
    if (substitutes) substitute(word);
    for (int k = 0; k < 4; ++k) {
      if (turns) word[k] = static_cast<unsigned char>(word[k] ^ Rcon[i / Nk][k]);
      word[k] = static_cast<unsigned char>(word[k] ^ word[k - 4 * Nk]);
    }
  }
}

constexpr void AesContext::KeyExpansion() {
  ExpandKey([](unsigned char* word) {
    for (int k = 0; k < 4; ++k) word[k] = sbox[word[k]];
  });
}

}  // namespace zeph

#endif  // ZEPH_CIPHER_AES_H
