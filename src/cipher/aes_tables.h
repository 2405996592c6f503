// The constant tables of AES (FIPS 197). The S-boxes are computed by the compiler from their
// definition, so that there is no row to mistype; the published vectors hold the result.
#ifndef ZEPH_CIPHER_AES_TABLES_H
#define ZEPH_CIPHER_AES_TABLES_H

#include <array>
#include <cstddef>

namespace zeph {

using Sbox = std::array<unsigned char, 256>;

// Doubles a byte in GF(2^8), modulo x^8 + x^4 + x^3 + x + 1. No branch depends on the byte.
constexpr unsigned char xtime(unsigned char byte) {
  return static_cast<unsigned char>((byte << 1) ^ ((byte >> 7) * 0x1b));
}

// The affine step of the S-box: the byte XOR its four rotations to the left, XOR 0x63.
constexpr unsigned char affine(unsigned char byte) {
  const unsigned twice = byte * 0x101u;  // a window of 8 bits into it is a rotation
  return static_cast<unsigned char>(byte ^ (twice >> 7) ^ (twice >> 6) ^ (twice >> 5) ^
                                    (twice >> 4) ^ 0x63);
}

// The powers of 3 are all non-zero bytes, and power i has power 255 - i as its inverse.
constexpr Sbox make_sbox() {
  Sbox power{};
  power[0] = 1;
  for (std::size_t i = 1; i < 256; ++i) {
    power[i] = static_cast<unsigned char>(power[i - 1] ^ xtime(power[i - 1]));
  }
  Sbox box{};
  box[0] = affine(0);
  for (std::size_t i = 0; i < 255; ++i) box[power[i]] = affine(power[255 - i]);
  return box;
}

constexpr Sbox invert(const Sbox& box) {
  Sbox inverse{};
  for (std::size_t i = 0; i < 256; ++i) inverse[box[i]] = static_cast<unsigned char>(i);
  return inverse;
}

inline constexpr Sbox sbox = make_sbox();
inline constexpr Sbox inverse_sbox = invert(sbox);

// Indexed by the number of the word in the key schedule divided by Nk: the first byte of the word,
// whose others are 0. The first one is not used.
inline constexpr unsigned char Rcon[11] = {
    0x00, 0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0x1b, 0x36,
};

}  // namespace zeph

#endif  // ZEPH_CIPHER_AES_TABLES_H
