#include <gtest/gtest.h>

#include <string>

#include "cipher/sealed_records_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// The record in room that ends with it; what the library leaves alone holds the pattern 'Z'.
std::string sealed(const std::string& text) {
  const GuardedBuffer record(16 + (text.size() + 15) / 16 * 16);
  EXPECT_EQ(Orbane::Zeph_Encrypt(GuardedText(text).data(), record.data()), record.size() - 16);
  return std::string(record.data(), record.size());
}

// The first call of this program, with nothing set up.
const std::string sealed_at_load = sealed("hello");

}  // namespace

TEST(SealedRecords, AreReadyBeforeMain) {
  EXPECT_EQ(sealed_at_load, hello_record);
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
