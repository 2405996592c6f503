// The ways in which the engine does its blocks. All give the same bytes and the same `state`, and
// each is complete by itself; aes.cpp chooses, and the tests call each by name.
//
// aes_portable.cpp is the reference: byte by byte, as the standard writes it. It looks bytes of the
// text and the key up in tables, so that the time of a block can depend on them through the cache.
// The others, with the processor's own instructions, are there on x86 if the compiler knows them,
// and take the same time for all texts and keys of a size.
#ifndef ZEPH_CIPHER_AES_PATHS_H
#define ZEPH_CIPHER_AES_PATHS_H

#include <cstddef>

namespace zeph {

class AesContext;

void encrypt_blocks_portable(const unsigned char* in, unsigned char* out, std::size_t count);
void decrypt_blocks_portable(const unsigned char* in, unsigned char* out, std::size_t count);

#ifdef ZEPH_HAS_AES_X86
inline bool has_aes_x86() {
  return __builtin_cpu_supports("aes") != 0;
}
void expand_key_x86(AesContext& context);
void encrypt_blocks_x86(const unsigned char* in, unsigned char* out, std::size_t count);
void decrypt_blocks_x86(const unsigned char* in, unsigned char* out, std::size_t count);
#endif

// Two blocks to an instruction, in batches; it pays where there is a whole one.
#ifdef ZEPH_HAS_VAES_X86
constexpr std::size_t vaes_batch = 16;
inline bool has_vaes_x86() {
  return __builtin_cpu_supports("vaes") && __builtin_cpu_supports("avx2") && has_aes_x86();
}
void encrypt_blocks_vaes(const unsigned char* in, unsigned char* out, std::size_t count);
void decrypt_blocks_vaes(const unsigned char* in, unsigned char* out, std::size_t count);
#endif

}  // namespace zeph

#endif  // ZEPH_CIPHER_AES_PATHS_H
