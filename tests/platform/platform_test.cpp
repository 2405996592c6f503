#include "platform/platform.h"

#include <gtest/gtest.h>

#include <cstdlib>

TEST(Platform, CapacityCoversTheRequest) {
  void* const block = std::malloc(100);
  EXPECT_GE(zeph::block_capacity(block), 100U);
  std::free(block);
}

// The ways without it are checked with the numbers.
TEST(Platform, DecimalPointIsADotAtTheStart) {
  EXPECT_TRUE(zeph::decimal_point_is_dot());
}
