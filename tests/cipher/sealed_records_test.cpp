#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "cipher/sealed_records_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

std::string padded(std::string text) {
  return text.append((16 - text.size() % 16) % 16, '\0');
}

// The record in room that ends with it; what the library leaves alone holds the pattern 'Z'.
std::string sealed(const std::string& text) {
  const std::size_t size = padded(text).size();
  const GuardedText from(text);
  const GuardedBuffer record(16 + size);
  EXPECT_EQ(Orbane::Zeph_Encrypt(from.data(), record.data()), size);
  return std::string(record.data(), record.size());
}

void expect_opens(const std::string& record, const std::string& expected) {
  const GuardedText from(record, End::bare);
  const GuardedBuffer text(record.size() - 16);
  EXPECT_EQ(Orbane::Zeph_Decrypt(from.data(), text.data()), text.size());
  EXPECT_EQ(std::string(text.data(), text.size()), expected);
}

// The first call of this program, with nothing set up.
const std::string sealed_at_load = sealed("hello");

}  // namespace

TEST(SealedRecords, HoldTheseBytes) {
  EXPECT_EQ(sealed_at_load, hello_record);
  each_row(sealed_rows, [](auto row) {
    Orbane::Zeph_Encrypt_Reset_Key(static_cast<unsigned long>(row.key.size()),
                                   reinterpret_cast<unsigned char*>(&row.key[0]));
    EXPECT_EQ(sealed(row.text), row.record);
    expect_opens(row.record, padded(row.text));
  });
}

TEST(SealedRecords, BringBackEveryLength) {
  std::string text;
  for (std::size_t n = 0; n <= 400; ++n, text.push_back(static_cast<char>(n % 255 + 1))) {
    SCOPED_TRACE(n);
    const std::string record = sealed(text), back = padded(text);
    expect_opens(record, back);

    // In its place. The terminator of a text that fills its last block lies behind the record.
    const GuardedBuffer room(16 + n / 16 * 16 + (n % 16 == 0 ? 1 : 16));
    std::memcpy(room.data() + 16, text.c_str(), n + 1);
    Orbane::Zeph_Encrypt(room.data() + 16, room.data());
    EXPECT_EQ(std::string(room.data(), record.size()), record);
    Orbane::Zeph_Decrypt(room.data(), room.data() + 16);
    EXPECT_EQ(std::string(room.data() + 16, back.size()), back);
  }
}

TEST(SealedRecords, AreRefusedIfUnsound) {
  each_row(unsound_headers, [](const auto& row) {
    const GuardedText record(row.header + std::string(24, 'r'), End::bare);
    const GuardedBuffer text(48, Edge::front);
    EXPECT_EQ(Orbane::Zeph_Decrypt(record.data(), text.data()), 0u);
    EXPECT_TRUE(text.untouched());
  });
  const GuardedText record(hello_record);
  EXPECT_EQ(Orbane::Zeph_Encrypt(record.data(), nullptr), 0u);
  EXPECT_EQ(Orbane::Zeph_Decrypt(record.data(), nullptr), 0u);
}
