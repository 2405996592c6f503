// Byte texts sealed into binary records and back, block by block under the key of `g_aes`.
//
// A record: cipher length, pad count (both unsigned, 32 bits, little-endian), 8 bytes that are
// nobody's, the cipher blocks. The last block of the text is filled up with the pad byte.
#include <cstdint>
#include <cstring>

#include "cipher/aes.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr std::size_t length_offset = 0;
constexpr std::size_t pad_count_offset = 4;
constexpr std::size_t blocks_offset = 16;
constexpr unsigned char pad_byte = 'X';
constexpr std::size_t longest_text = 0xFFFFFFF0;  // what the length field can tell, in whole blocks

void put_field(unsigned char* field, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) field[i] = static_cast<unsigned char>(value >> (8 * i));
}

std::uint32_t field_value(const unsigned char* field) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) value |= static_cast<std::uint32_t>(field[i]) << (8 * i);
  return value;
}

std::uint32_t seal(const unsigned char* text, std::size_t size, unsigned char* record) {
  if (size > longest_text) return 0;
  const std::size_t tail = size % block_size;
  const std::size_t whole = size - tail;
  unsigned char* const blocks = record + blocks_offset;
  unsigned char* const last = blocks + whole;
  // The last block is filled up in its place and before the others are enciphered: read back at
  // once, bytes of several small stores would keep the processor waiting.
  const std::size_t pad_count = tail == 0 ? 0 : block_size - tail;
  if (tail != 0) {
    std::memmove(last, text + whole, tail);
    std::memset(last + tail, pad_byte, pad_count);
  }
  EncryptBlocks(text, blocks, whole / block_size);
  if (tail != 0) EncryptBlock(last, last);
  const auto length = static_cast<std::uint32_t>(size + pad_count);
  put_field(record + length_offset, length);
  put_field(record + pad_count_offset, static_cast<std::uint32_t>(pad_count));
  return length;
}

std::uint32_t open(const unsigned char* record, unsigned char* text) {
  const std::uint32_t length = field_value(record + length_offset);
  const std::uint32_t pad_count = field_value(record + pad_count_offset);
  // A sound length that is not 0 has room for any sound pad count.
  if (length == 0 || length % block_size != 0 || pad_count >= block_size) return 0;
  DecryptBlocks(record + blocks_offset, text, length / block_size);
  if (pad_count != 0) std::memset(text + length - pad_count, 0, pad_count);
  return length;
}

// Takes over the key, straight into the object, so that no copy of it is left to be wiped; a size
// that is none changes nothing.
void reset_key(std::size_t size, const unsigned char* key) {
  if (size != 16 && size != 24 && size != 32) return;
  std::memset(g_aes.state, 0, sizeof g_aes.state);
  g_aes.Nk = static_cast<std::int32_t>(size / 4);
  g_aes.Nr = g_aes.Nk + 6;
  std::memcpy(g_aes.key, key, size);
  std::memset(g_aes.key + size, 0, sizeof g_aes.key - size);
  ExpandKey(g_aes);
}

unsigned char* bytes(char* text) {
  return reinterpret_cast<unsigned char*>(text);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Encrypt_Reset_Key(unsigned long size, unsigned char* key) {
  zeph::reset_key(size, key);
}

unsigned long Zeph_Encrypt(char* text, char* record) {
  if (!record) return 0;
  return zeph::seal(zeph::bytes(text), std::strlen(text), zeph::bytes(record));
}

unsigned long Zeph_Decrypt(char* record, char* text) {
  if (!text) return 0;
  return zeph::open(zeph::bytes(record), zeph::bytes(text));
}

}  // namespace Orbane
