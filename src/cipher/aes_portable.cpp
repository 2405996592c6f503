// AES as FIPS 197 writes it, on the state of `g_aes`, with nothing but the two S-boxes and xtime.
#include <cstring>

#include "cipher/aes.h"
#include "cipher/aes_paths.h"

namespace zeph {
namespace {

// Where byte i of a block stands in the state: the block runs down the columns.
constexpr std::size_t place(std::size_t i) {
  return 4 * (i % 4) + i / 4;
}

void load_block(const unsigned char* in) {
  for (std::size_t i = 0; i < block_size; ++i) g_aes.state[place(i)] = in[i];
}

void store_block(unsigned char* out) {
  for (std::size_t i = 0; i < block_size; ++i) out[i] = g_aes.state[place(i)];
}

void AddRoundKey(int round) {
  const unsigned char* const key = g_aes.w + 16 * round;
  for (std::size_t i = 0; i < block_size; ++i) g_aes.state[place(i)] ^= key[i];
}

void SubBytes() {
  for (unsigned char& byte : g_aes.state) byte = sbox[byte];
}

void InvSubBytes() {
  for (unsigned char& byte : g_aes.state) byte = inverse_sbox[byte];
}

// A copy of the state from which a step works, with its bytes counted along a row or down a column.
class StateCopy {
 public:
  StateCopy() {
    std::memcpy(bytes_, g_aes.state, sizeof bytes_);
  }
  // The byte `steps` behind byte i in its row, from the row's end on to its start.
  unsigned char right(std::size_t i, std::size_t steps) const {
    return bytes_[i / 4 * 4 + (i + steps) % 4];
  }
  // The byte `steps` below byte i in its column, from the column's end on to its start.
  unsigned char below(std::size_t i, std::size_t steps) const {
    return bytes_[(i + 4 * steps) % block_size];
  }

 private:
  unsigned char bytes_[block_size];
};

void ShiftRows() {
  const StateCopy from;
  for (std::size_t i = 0; i < block_size; ++i) g_aes.state[i] = from.right(i, i / 4);
}

void InvShiftRows() {
  const StateCopy from;
  for (std::size_t i = 0; i < block_size; ++i) g_aes.state[i] = from.right(i, 4 - i / 4);
}

void MixColumns() {
  const StateCopy from;
  for (std::size_t i = 0; i < block_size; ++i) {
    const unsigned char a = from.below(i, 0), b = from.below(i, 1);
    g_aes.state[i] =
        static_cast<unsigned char>(xtime(a) ^ xtime(b) ^ b ^ from.below(i, 2) ^ from.below(i, 3));
  }
}

// The coefficients 0e, 0b, 0d, 09 are 05, 00, 04, 00 and then those of MixColumns.
void InvMixColumns() {
  const StateCopy from;
  for (std::size_t i = 0; i < block_size; ++i) {
    const unsigned char a = from.below(i, 0), c = from.below(i, 2);
    const unsigned char four_ac = xtime(xtime(static_cast<unsigned char>(a ^ c)));
    g_aes.state[i] = static_cast<unsigned char>(a ^ four_ac);
  }
  MixColumns();
}

void encrypt_block(const unsigned char* in, unsigned char* out) {
  load_block(in);
  AddRoundKey(0);
  for (int round = 1; round < g_aes.Nr; ++round) {
    SubBytes();
    ShiftRows();
    MixColumns();
    AddRoundKey(round);
  }
  SubBytes();
  ShiftRows();
  AddRoundKey(g_aes.Nr);
  store_block(out);
}

void decrypt_block(const unsigned char* in, unsigned char* out) {
  load_block(in);
  AddRoundKey(g_aes.Nr);
  for (int round = g_aes.Nr - 1; round > 0; --round) {
    InvShiftRows();
    InvSubBytes();
    AddRoundKey(round);
    InvMixColumns();
  }
  InvShiftRows();
  InvSubBytes();
  AddRoundKey(0);
  store_block(out);
}

}  // namespace

void encrypt_blocks_portable(const unsigned char* in, unsigned char* out, std::size_t count) {
  for (; count != 0; --count, in += block_size, out += block_size) encrypt_block(in, out);
}

void decrypt_blocks_portable(const unsigned char* in, unsigned char* out, std::size_t count) {
  for (; count != 0; --count, in += block_size, out += block_size) decrypt_block(in, out);
}

}  // namespace zeph
