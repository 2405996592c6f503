#include <gtest/gtest.h>

#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(MessageName, StreamAndFunction) {
  each_row(message_names, [](const auto& row) {
    GuardedText text(row.text);
    const bool valid = row.stream >= 0;
    unsigned char stream = 77, function = 78;
    EXPECT_EQ(Orbane::Zeph_Check_SxxFxx(text.data(), &stream, &function), valid);
    EXPECT_EQ(stream, valid ? row.stream : 77);
    EXPECT_EQ(function, valid ? row.function : 78);
    EXPECT_EQ(Orbane::Zeph_Check_SxxFxx(text.data(), nullptr, nullptr), valid);
  });
}
