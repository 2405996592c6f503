// The published answers that every path of the AES engine gives.
#ifndef ZEPH_TESTS_CIPHER_AES_VECTORS_H
#define ZEPH_TESTS_CIPHER_AES_VECTORS_H

#include <cstddef>

namespace zeph_test {

// Key and text in hexadecimal; the zero bytes at their ends are left out.
struct AesVector {
  const char* why;
  std::size_t key_size;
  const char* key;
  const char* plain;
  const char* cipher;
};

constexpr std::size_t aes_vector_count = 208;
extern const AesVector aes_vectors[aes_vector_count];

}  // namespace zeph_test

#endif  // ZEPH_TESTS_CIPHER_AES_VECTORS_H
