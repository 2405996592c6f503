#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace std::string_literals;
using zeph_test::each_row;
using zeph_test::GuardedBuffer;
using zeph_test::GuardedText;

namespace {

const std::string default_key = "QX-LM_SEALKEY" + std::string(19, '\0');
const std::string hello_record =
    "\x10\0\0\0\x0B\0\0\0ZZZZZZZZ"
    "\x67\x1C\xA3\x23\x17\xD5\x98\x53\xAD\xDA\x17\xB6\x70\x83\x56\xEE"s;

std::size_t padded(std::size_t size) {
  return (size + 15) / 16 * 16;
}

// The record in room that ends with it; what the library leaves alone holds the pattern 'Z'.
std::string sealed(const std::string& text) {
  const GuardedText from(text);
  const GuardedBuffer record(16 + padded(text.size()));
  EXPECT_EQ(Orbane::Zeph_Encrypt(from.data(), record.data()), padded(text.size()));
  return std::string(record.data(), record.size());
}

// The whole room of a text: L bytes.
std::string opened(const std::string& record) {
  const GuardedText from(record, zeph_test::End::bare);
  const GuardedBuffer text(record.size() - 16);
  EXPECT_EQ(Orbane::Zeph_Decrypt(from.data(), text.data()), record.size() - 16);
  return std::string(text.data(), text.size());
}

void reset_key(std::string key) {
  Orbane::Zeph_Encrypt_Reset_Key(static_cast<unsigned long>(key.size()),
                                 reinterpret_cast<unsigned char*>(&key[0]));
}

// The first call of this program, with nothing set up.
const std::string sealed_at_load = sealed("hello");

}  // namespace

TEST(SealedRecords, NeedNoKeyFirst) {
  EXPECT_EQ(sealed_at_load, hello_record);
}

TEST(SealedRecords, HoldTheseBytes) {
  const struct {
    const char* why;
    std::string key, text, record;
  } rows[] = {
      {"default key", default_key, "hello", hello_record},
      {"a whole block has no padding behind it", default_key, "0123456789abcdef",
       "\x10\0\0\0\0\0\0\0ZZZZZZZZ"
       "\x9A\x59\x00\xF9\x83\x32\x4A\x19\xC8\xAC\x84\xAE\x37\xA6\x2D\xBF"s},
      {"16 bytes of key, zeros among them", "\x4B\0\x91"s + std::string(13, '\0'), "recipe 17",
       "\x10\0\0\0\x07\0\0\0ZZZZZZZZ"
       "\xB2\x4B\x07\xC2\x35\xD5\x57\xDD\x1B\xDF\x99\x77\x77\xB7\x20\xAB"s},
      {"24 bytes of key, a text that ends like padding", std::string(23, '\0') + "\x01",
       "recipe 17XX",
       "\x10\0\0\0\x05\0\0\0ZZZZZZZZ"
       "\x95\x98\x7F\x94\x86\x89\x89\x5E\xC3\x48\x3A\xD1\xD6\x4E\xFA\x07"s},
      {"the empty text", default_key, "", "\0\0\0\0\0\0\0\0ZZZZZZZZ"s},
  };
  each_row(rows, [](const auto& row) {
    reset_key(row.key);
    EXPECT_EQ(sealed(row.text), row.record);
  });
}

TEST(SealedRecords, BringBackEveryLength) {
  reset_key(default_key);
  std::string text;
  for (std::size_t n = 0; n <= 400; ++n, text.push_back(static_cast<char>(n % 255 + 1))) {
    SCOPED_TRACE(n);
    const std::string record = sealed(text);
    const std::string back = text + std::string(padded(n) - n, '\0');
    EXPECT_EQ(opened(record), back);

    // In its place. The terminator of a text that fills its last block lies behind the record.
    const GuardedBuffer room(16 + n / 16 * 16 + (n % 16 == 0 ? 1 : 16));
    std::memcpy(room.data() + 16, text.c_str(), n + 1);
    Orbane::Zeph_Encrypt(room.data() + 16, room.data());
    EXPECT_EQ(std::string(room.data(), record.size()), record);
    Orbane::Zeph_Decrypt(room.data(), room.data() + 16);
    EXPECT_EQ(std::string(room.data() + 16, padded(n)), back);
  }
}

TEST(SealedRecords, ReadUnderTheirOwnKeyOnly) {
  reset_key(default_key);
  const std::string text(32, 'a');
  const std::string record = sealed(text);
  EXPECT_EQ(record.substr(16, 16), record.substr(32, 16));  // equal blocks show
  reset_key(default_key.substr(0, 16));
  EXPECT_NE(opened(record), text);
  reset_key(default_key);
  EXPECT_EQ(opened(record), text);
}

TEST(SealedRecords, AreRefusedIfUnsound) {
  const struct {
    const char* why;
    std::string header;
  } rows[] = {
      {"length 17", "\x11\0\0\0\0\0\0\0"s},
      {"length 16 and something far up", "\x10\0\0\0\0\0\0\x01"s},
      {"length 0", "\0\0\0\0\0\0\0\0"s},
      {"length 0 with padding", "\0\0\0\0\x01\0\0\0"s},
      {"a whole block of padding", "\x10\0\0\0\x10\0\0\0"s},
      {"padding in the other byte order", "\x10\0\0\0\0\0\0\x0B"s},
      {"the largest numbers", "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s},
  };
  each_row(rows, [](const auto& row) {
    const GuardedText record(row.header + std::string(24, 'r'), zeph_test::End::bare);
    const GuardedBuffer text(48, zeph_test::Edge::front);
    EXPECT_EQ(Orbane::Zeph_Decrypt(record.data(), text.data()), 0u);
    EXPECT_TRUE(text.untouched());
  });
}

TEST(SealedRecords, AreNothingWithoutABuffer) {
  const GuardedText text("hello"), record(hello_record);
  EXPECT_EQ(Orbane::Zeph_Encrypt(text.data(), nullptr), 0u);
  EXPECT_EQ(Orbane::Zeph_Decrypt(record.data(), nullptr), 0u);
}
