#include "cipher/aes.h"

#include "cipher/aes_paths.h"

namespace zeph {
namespace {

constexpr AesContext default_context() {
  AesContext context{{}, 4, 8, 14, {"QX-LM_SEALKEY"}, {}};
  context.KeyExpansion();
  return context;
}

constexpr AesContext initial_context = default_context();

}  // namespace

AesContext g_aes = initial_context;

// The branches cost less than a call through a pointer would, and leave no writable data behind.

void ExpandKey(AesContext& context) {
#ifdef ZEPH_HAS_AES_X86
  if (has_aes_x86()) return expand_key_x86(context);
#endif
  context.KeyExpansion();
}

void EncryptBlocks(const unsigned char* in, unsigned char* out, std::size_t count) {
#ifdef ZEPH_HAS_VAES_X86
  if (count >= vaes_batch && has_vaes_x86()) return encrypt_blocks_vaes(in, out, count);
#endif
#ifdef ZEPH_HAS_AES_X86
  if (has_aes_x86()) return encrypt_blocks_x86(in, out, count);
#endif
  encrypt_blocks_portable(in, out, count);
}

void DecryptBlocks(const unsigned char* in, unsigned char* out, std::size_t count) {
#ifdef ZEPH_HAS_VAES_X86
  if (count >= vaes_batch && has_vaes_x86()) return decrypt_blocks_vaes(in, out, count);
#endif
#ifdef ZEPH_HAS_AES_X86
  if (has_aes_x86()) return decrypt_blocks_x86(in, out, count);
#endif
  decrypt_blocks_portable(in, out, count);
}

}  // namespace zeph
