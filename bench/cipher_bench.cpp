// Sealing and opening under a 256-bit key against the same blocks done by OpenSSL, which holds its
// key ready in a context of its own.
#include <algorithm>
#include <memory>
#include <string>

#include "bench.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_OPENSSL
#include <openssl/evp.h>
#endif

namespace zeph_bench {
namespace {

struct Sealing {
  std::size_t size;
  Places places;
  char *text, *record, *back;

  explicit Sealing(std::size_t bytes)
      : size(bytes),
        text(places.text(std::string(size, 't'))),
        record(places.room(16 + size)),
        back(places.room(size)) {
    Orbane::Zeph_Encrypt(text, record);
  }

  unsigned char* blocks() {
    return reinterpret_cast<unsigned char*>(record + 16);
  }
};

std::string take(char* output, std::size_t size) {
  std::string all(output, size);
  std::fill(output, output + size, '#');
  return all;
}

#if ZEPH_BENCH_HAS_OPENSSL
class OpensslCipher {
 public:
  OpensslCipher(const unsigned char* key, bool encrypts) : context_(EVP_CIPHER_CTX_new()) {
    EVP_CipherInit_ex(context_.get(), EVP_aes_256_ecb(), nullptr, key, nullptr, encrypts ? 1 : 0);
    EVP_CIPHER_CTX_set_padding(context_.get(), 0);
  }
  unsigned long run(const void* in, unsigned char* out, std::size_t size) {
    int written = 0;
    EVP_CipherUpdate(context_.get(), out, &written, static_cast<const unsigned char*>(in),
                     static_cast<int>(size));
    return static_cast<unsigned long>(written);
  }

 private:
  struct Free {
    void operator()(EVP_CIPHER_CTX* context) const {
      EVP_CIPHER_CTX_free(context);
    }
  };
  std::unique_ptr<EVP_CIPHER_CTX, Free> context_;
};
#endif

void add_peer(Row& added, Sealing& s, const unsigned char* key, bool encrypts) {
#if ZEPH_BENCH_HAS_OPENSSL
  auto& cipher = keep(OpensslCipher(key, encrypts));
  if (encrypts) {
    added.peer("EVP ECB", [&cipher, &s] { return cipher.run(s.text, s.blocks(), s.size); });
  } else {
    auto* const back = reinterpret_cast<unsigned char*>(s.back);
    added.peer("EVP ECB", [&cipher, &s, back] { return cipher.run(s.blocks(), back, s.size); });
  }
#else
  static_cast<void>(s), static_cast<void>(key), static_cast<void>(encrypts);
  added.missing_peer("OpenSSL");
#endif
}

void add_rows(Sealing& s, const std::string& input, const unsigned char* key) {
  Row& seal = row("cipher", "Zeph_Encrypt", input, s.size);
  seal.reason("the same rounds; Zeph finds the end of the text and keeps the last block's state");
  seal.outputs([&s] { return take(s.record + 16, s.size); });
  seal.zeph([&s] { return Orbane::Zeph_Encrypt(s.text, s.record); });
  add_peer(seal, s, key, true);

  Orbane::Zeph_Encrypt(s.text, s.record);
  Row& open = row("cipher", "Zeph_Decrypt", input, s.size);
  open.reason("the same rounds; Zeph turns the round keys at each call and keeps no copy of them");
  open.outputs([&s] { return take(s.back, s.size); });
  open.zeph([&s] { return Orbane::Zeph_Decrypt(s.record, s.back); });
  add_peer(open, s, key, false);
}

}  // namespace

void register_cipher_rows() {
  unsigned char key[32] = {7, 0, 77};
  Orbane::Zeph_Encrypt_Reset_Key(sizeof key, key);
  for (const std::size_t size : {16U, 64U, 1024U, 65536U, 1048576U}) {
    add_rows(keep(Sealing(size)), size_text(size), key);
  }
}

}  // namespace zeph_bench
