#include "cipher/aes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "cipher/aes_paths_table.h"
#include "cipher/aes_vectors_table.h"
#include "cipher/wipe.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using zeph::g_aes;
using namespace zeph_test;

namespace {

// Taken before any code of the library has run.
const zeph::AesContext at_load = g_aes;

using Bytes = std::vector<unsigned char>;

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

// Between inaccessible pages, from one buffer to another or in their place, what the portable form
// gives one block after the other; and the context is left with the same bytes.
void expect_as_one_by_one(Blocks blocks, Blocks portable, const Bytes& in) {
  for (const bool in_place : {false, true}) {
    Bytes expected = in;
    for (std::size_t i = 0; i < in.size(); i += 16) portable(&in[i], &expected[i], 1);
    const zeph::AesContext after = g_aes;
    const GuardedBuffer from(in.size()), to(in.size());
    std::copy(in.begin(), in.end(), from.data());
    auto* const target = reinterpret_cast<unsigned char*>(in_place ? from.data() : to.data());
    blocks(reinterpret_cast<unsigned char*>(from.data()), target, in.size() / 16);
    EXPECT_EQ(Bytes(target, target + in.size()), expected);
    EXPECT_EQ(std::memcmp(&after, &g_aes, sizeof after), 0);
  }
}

}  // namespace

TEST_P(AesPath, GivesThePublishedAnswers) {
  each_row(aes_vectors, [](const AesVector& row) {
    reset_key(bytes_of(row.key, row.key_size));
    const Bytes plain = bytes_of(row.plain, 16), cipher = bytes_of(row.cipher, 16);
    Bytes block = plain;
    GetParam().encrypt(block.data(), block.data(), 1);
    EXPECT_EQ(block, cipher);
    for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(g_aes.state[i % 4 * 4 + i / 4], block[i]);
    GetParam().decrypt(block.data(), block.data(), 1);
    EXPECT_EQ(block, plain);
    zeph::EncryptBlock(plain.data(), block.data());
    EXPECT_EQ(block, cipher);
    zeph::DecryptBlock(cipher.data(), block.data());
    EXPECT_EQ(block, plain);
  });
}

TEST_P(AesPath, TakesEveryNumberOfBlocks) {
  std::mt19937 random(8);
  const auto random_bytes = [&](std::size_t size) {
    Bytes bytes(size);
    for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
    return bytes;
  };
  for (std::size_t count = 0; count <= 50; ++count) {
    SCOPED_TRACE(count);
    reset_key(random_bytes(32 - 8 * (count % 3)));
    const auto *const behind = g_aes.w + 16 * (g_aes.Nr + 1), *const end = g_aes.w + sizeof g_aes.w;
    EXPECT_EQ(std::count(behind, end, 0), end - behind);
    zeph::AesContext again = g_aes;
    std::memset(again.w, 0xA5, sizeof again.w);
    again.KeyExpansion();
    EXPECT_EQ(std::memcmp(&again, &g_aes, sizeof again), 0);
    const Bytes in = random_bytes(16 * count);
    expect_as_one_by_one(GetParam().encrypt, zeph::encrypt_blocks_portable, in);
    expect_as_one_by_one(GetParam().decrypt, zeph::decrypt_blocks_portable, in);
  }
}

TEST(AesContext, HoldsTheExpandedDefaultKeyAtLoad) {
  reset_key(bytes_of("51582d4c4d5f5345414c4b4559", 32));
  EXPECT_EQ(std::memcmp(&at_load, &g_aes, sizeof at_load), 0);
  EXPECT_EQ(std::string(at_load.key, at_load.key + 14), std::string("QX-LM_SEALKEY", 14));
  EXPECT_EQ(at_load.Nb, 4);
}

TEST(AesContext, WipesWorkingCopies) {
  unsigned char bytes[9] = "key key";
  zeph::wipe(bytes, sizeof bytes - 1);
  EXPECT_EQ(Bytes(bytes, bytes + 9), Bytes(9));
}

TEST(AesContext, KeepsItsKeyWhenTheSizeIsNone) {
  reset_key(bytes_of("0102", 24));
  const zeph::AesContext before = g_aes;
  for (const unsigned long size : {0ul, 4ul, 15ul, 17ul, 31ul, 33ul, 40ul, 128ul, 256ul, ~0ul}) {
    Orbane::Zeph_Encrypt_Reset_Key(size, nullptr);
    EXPECT_EQ(std::memcmp(&before, &g_aes, sizeof before), 0) << size;
  }
}
