#include "number/real_format.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

#include "number/real_format_table.h"
#include "number/wide_product.h"
#include "support/guarded_buffer.h"
#include "support/table.h"

using namespace zeph_test;

TEST(RealFormat, ExponentTrim) {
  each_row(exponent_rows, [](const auto& row) {
    const GuardedText text(row.text);
    zeph::trim_exponent(text.data());
    EXPECT_STREQ(text.data(), row.trimmed);
  });
}

TEST(WideProduct, PortableFormAgrees) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 1000; ++i) {
    const std::uint64_t a = i == 0 ? ~std::uint64_t{0} : random();
    const std::uint64_t b = i == 0 ? a : random() >> random() % 64;
    const zeph::Wide wide = zeph::wide_product(a, b), plain = zeph::wide_product_portable(a, b);
    EXPECT_EQ(plain.low, a * b);
    EXPECT_EQ(wide.low, plain.low);
    EXPECT_EQ(wide.high, plain.high);
  }
}
