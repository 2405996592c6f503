// Sealing and opening under a 256-bit key against the same blocks done by OpenSSL, which holds its
// key ready in a context of its own.
#include <algorithm>
#include <memory>
#include <string>

#include "bench.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_OPENSSL
#define OPENSSL_SUPPRESS_DEPRECATED  // the key schedule alone has no other name
#include <openssl/aes.h>
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
  bool set_key(const unsigned char* key) {
    return EVP_CipherInit_ex(context_.get(), nullptr, nullptr, key, nullptr, -1) == 1;
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

// Which of them was given the key last: its block is the answer.
enum class Holder { zeph, evp, schedule };

struct Keys {
  unsigned char key[32];
  Sealing block{16};
  Holder last = Holder::zeph;
};

#if ZEPH_BENCH_HAS_OPENSSL
struct Peers {
  OpensslCipher evp;
  AES_KEY schedule;
};

void seal_block(Keys& k, Peers& peers) {
  const auto* const text = reinterpret_cast<const unsigned char*>(k.block.text);
  if (k.last == Holder::zeph) Orbane::Zeph_Encrypt(k.block.text, k.block.record);
  if (k.last == Holder::evp) peers.evp.run(text, k.block.blocks(), k.block.size);
  if (k.last == Holder::schedule) AES_encrypt(text, k.block.blocks(), &peers.schedule);
}
#endif

// The key in force is the same before and behind, as all other rows seal under it. Keys of the two
// shorter sizes have no row, as whatever is timed behind them would seal under them.
void add_key_row(const unsigned char* key) {
  Keys& k = keep(Keys{});
  std::copy(key, key + sizeof k.key, k.key);
  Row& reset = row("cipher", "Zeph_Encrypt_Reset_Key", "32 bytes", sizeof k.key);
  reset.reason("one schedule for keys of all sizes, word by word");
  const auto by_zeph = [&k] {
    k.last = Holder::zeph;
    return Orbane::Zeph_Encrypt_Reset_Key(sizeof k.key, k.key), true;
  };
#if ZEPH_BENCH_HAS_OPENSSL
  Peers& peers = keep(Peers{OpensslCipher(key, true), AES_KEY{}});
  reset
      .outputs([&k, &peers] {
        seal_block(k, peers);
        return take(k.block.record + 16, k.block.size);
      })
      .zeph(by_zeph)
      .peer("EVP_CipherInit_ex",
            [&k, &peers] {
              k.last = Holder::evp;
              return peers.evp.set_key(k.key);
            })
      .peer("AES_set_encrypt_key", [&k, &peers] {
        k.last = Holder::schedule;
        return AES_set_encrypt_key(k.key, 256, &peers.schedule) == 0;
      });
#else
  reset.zeph(by_zeph).missing_peer("OpenSSL");
#endif
}

}  // namespace

void register_cipher_rows() {
  unsigned char key[32] = {7, 0, 77};
  Orbane::Zeph_Encrypt_Reset_Key(sizeof key, key);
  add_key_row(key);
  for (const std::size_t size : {16U, 32U, 64U, 1024U, 4096U, 65536U, 1048576U}) {
    add_rows(keep(Sealing(size)), size_text(size), key);
  }
}

}  // namespace zeph_bench
