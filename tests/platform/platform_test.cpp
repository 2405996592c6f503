#include "platform/platform.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include "support/scoped_locale.h"

TEST(Platform, CapacityCoversTheRequest) {
  void* const block = std::malloc(100);
  EXPECT_GE(zeph::block_capacity(block), 100U);
  std::free(block);
}

TEST(Platform, ErrorStateIsKept) {
  errno = 33;
  {
    const zeph::ErrorStateKeeper keeper;
    errno = 1;
  }
  EXPECT_EQ(errno, 33);
}

TEST(Platform, DecimalPointFollowsTheLocale) {
  EXPECT_TRUE(zeph::decimal_point_is_dot());
  const zeph_test::ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  EXPECT_FALSE(zeph::decimal_point_is_dot());
}
