// The ways through the AES engine.
#ifndef ZEPH_TESTS_CIPHER_AES_PATHS_TABLE_H
#define ZEPH_TESTS_CIPHER_AES_PATHS_TABLE_H

#include <cstddef>
#include "cipher/aes.h"
#include "cipher/aes_paths.h"

namespace zeph_test {

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

}  // namespace zeph_test

#endif  // ZEPH_TESTS_CIPHER_AES_PATHS_TABLE_H
