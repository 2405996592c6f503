#include <gtest/gtest.h>

#include "zeph.h"

TEST(Version, IsAConstantText) {
  const char* const version = Orbane::Zeph_Version_Info();
  EXPECT_STREQ(version, "0003-20250729");
  EXPECT_EQ(version, Orbane::Zeph_Version_Info());
}
