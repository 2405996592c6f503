#include "platform/platform.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

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
