#include "cipher/aes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "cipher/aes_paths.h"
#include "cipher/aes_vectors.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using zeph::g_aes;
using zeph_test::each_row;
using zeph_test::GuardedBuffer;

namespace {

// Taken before any code of the library has run.
const zeph::AesContext at_load = g_aes;

using Bytes = std::vector<unsigned char>;
using Blocks = void (*)(const unsigned char* in, unsigned char* out, std::size_t count);

struct Path {
  const char* name;
  bool (*usable)();
  Blocks encrypt, decrypt;
};

const Path paths[] = {
    {"chosen", [] { return true; }, zeph::EncryptBlocks, zeph::DecryptBlocks},
    {"portable", [] { return true; }, zeph::encrypt_blocks_portable, zeph::decrypt_blocks_portable},
#ifdef ZEPH_HAS_AES_X86
    {"x86", zeph::has_aes_x86, zeph::encrypt_blocks_x86, zeph::decrypt_blocks_x86},
#endif
#ifdef ZEPH_HAS_VAES_X86
    {"vaes", zeph::has_vaes_x86, zeph::encrypt_blocks_vaes, zeph::decrypt_blocks_vaes},
#endif
};

class AesPath : public testing::TestWithParam<Path> {
 protected:
  void SetUp() override {
    if (!GetParam().usable()) GTEST_SKIP() << "this processor has no such instructions";
  }
};

INSTANTIATE_TEST_SUITE_P(Each, AesPath, testing::ValuesIn(paths),
                         [](const auto& path) { return path.param.name; });

// The bytes that `hex` stands for, and zeros behind them.
Bytes bytes_of(const std::string& hex, std::size_t size) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < hex.size() / 2; ++i) {
    bytes[i] = static_cast<unsigned char>(std::stoi(hex.substr(2 * i, 2), nullptr, 16));
  }
  return bytes;
}

void reset_key(Bytes key) {
  Orbane::Zeph_Encrypt_Reset_Key(static_cast<unsigned long>(key.size()), key.data());
}

// Runs `count` blocks between inaccessible pages, from one buffer to another or in their place.
Bytes run(Blocks blocks, const Bytes& in, bool in_place = false) {
  const GuardedBuffer from(in.size()), to(in.size());
  std::copy(in.begin(), in.end(), from.data());
  const auto* const source = reinterpret_cast<const unsigned char*>(from.data());
  auto* const target = reinterpret_cast<unsigned char*>(in_place ? from.data() : to.data());
  blocks(source, target, in.size() / 16);
  return Bytes(target, target + in.size());
}

Bytes repeated(const Bytes& block, std::size_t count) {
  Bytes all;
  for (; count != 0; --count) all.insert(all.end(), block.begin(), block.end());
  return all;
}

bool state_is(const Bytes& block) {
  for (std::size_t i = 0; i < 16; ++i) {
    if (g_aes.state[4 * (i % 4) + i / 4] != block[i]) return false;
  }
  return true;
}

}  // namespace

TEST_P(AesPath, GivesThePublishedAnswers) {
  each_row(zeph_test::aes_vectors, [](const zeph_test::AesVector& row) {
    reset_key(bytes_of(row.key, row.key_size));
    const Bytes plain = bytes_of(row.plain, 16), cipher = bytes_of(row.cipher, 16);
    for (const std::size_t count : {1u, 47u}) {  // 47 needs every number of blocks in flight
      const Bytes plains = repeated(plain, count), ciphers = repeated(cipher, count);
      EXPECT_EQ(run(GetParam().encrypt, plains), ciphers);
      EXPECT_TRUE(state_is(cipher));
      EXPECT_EQ(run(GetParam().decrypt, ciphers), plains);
      EXPECT_TRUE(state_is(plain));
    }
  });
}

// AESAVS, ECBMCT128: each key is the one before XOR the last of a thousand ciphers.
TEST_P(AesPath, WalksTheMonteCarloChain) {
  Bytes key = bytes_of("139a35422f1d61de3c91787fe0507afd", 16);
  Bytes block = bytes_of("b9145a768b7dc489a096b546f43b231f", 16);
  for (int i = 0; i < 100; ++i) {
    reset_key(key);
    for (int k = 0; k < 1000; ++k) GetParam().encrypt(block.data(), block.data(), 1);
    for (std::size_t k = 0; k < 16; ++k) key[k] = static_cast<unsigned char>(key[k] ^ block[k]);
  }
  EXPECT_EQ(block, bytes_of("fb2649694783b551eacd9d5db6126d47", 16));
}

TEST_P(AesPath, AgreesWithThePortableOneOnRandomBlocks) {
  std::mt19937 random(8);
  const auto random_bytes = [&](std::size_t size) {
    Bytes bytes(size);
    for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
    return bytes;
  };
  for (std::size_t count = 0; count <= 50; ++count) {
    SCOPED_TRACE(count);
    reset_key(random_bytes(16 + 8 * (count % 3)));
    const Bytes in = random_bytes(16 * count);
    for (const bool in_place : {false, true}) {
      const Bytes cipher = run(zeph::encrypt_blocks_portable, in);
      EXPECT_EQ(run(GetParam().encrypt, in, in_place), cipher);
      const Bytes plain = run(zeph::decrypt_blocks_portable, in);
      const zeph::AesContext after = g_aes;
      EXPECT_EQ(run(GetParam().decrypt, in, in_place), plain);
      EXPECT_EQ(std::memcmp(&after, &g_aes, sizeof after), 0);
    }
  }
}

TEST(AesContext, HoldsTheExpandedDefaultKeyAtLoad) {
  Bytes key(32);
  std::memcpy(key.data(), "QX-LM_SEALKEY", 13);
  EXPECT_EQ(Bytes(at_load.key, at_load.key + 32), key);
  EXPECT_EQ(at_load.Nb, 4);
  EXPECT_EQ(at_load.Nk, 8);
  EXPECT_EQ(at_load.Nr, 14);
  reset_key(key);
  EXPECT_EQ(std::memcmp(&at_load, &g_aes, sizeof at_load), 0);
}

TEST(AesContext, IsZeroBehindTheLastRoundKey) {
  for (const int words : {4, 6, 8}) {
    zeph::AesContext context;
    std::memset(&context, 0xA5, sizeof context);
    context.Nk = words;
    context.Nr = words + 6;
    context.KeyExpansion();
    const Bytes w(context.w, context.w + sizeof context.w);
    const auto used = 16 * (words + 7);
    EXPECT_NE(Bytes(w.begin() + used - 16, w.begin() + used), Bytes(16));
    EXPECT_EQ(Bytes(w.begin() + used, w.end()), Bytes(static_cast<std::size_t>(240 - used)));
  }
}

TEST(AesContext, KeepsItsKeyWhenTheSizeIsNone) {
  reset_key(bytes_of("0102", 24));
  const zeph::AesContext before = g_aes;
  for (const unsigned long size : {0ul, 4ul, 15ul, 17ul, 31ul, 33ul, 40ul, 128ul, 256ul, ~0ul}) {
    Orbane::Zeph_Encrypt_Reset_Key(size, nullptr);
    EXPECT_EQ(std::memcmp(&before, &g_aes, sizeof before), 0) << size;
  }
}
