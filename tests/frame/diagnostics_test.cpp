#include "frame/diagnostics.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/stdout_capture.h"

using zeph_test::StdoutCapture;

TEST(Diagnostics, PrintAddsNothing) {
  StdoutCapture capture;
  errno = 77;
  zeph::Diag_Print("%s=%d", "x", 5);
  EXPECT_EQ(errno, 77);
  EXPECT_EQ(capture.text(), "x=5");
}

TEST(Diagnostics, BannerIsOneUnbrokenRun) {
  const std::string rule = "------------------------------------------------";
  StdoutCapture capture;
  zeph::Diag_Banner("100%%");
  zeph::Diag_Banner("[%s]", "a\nb");
  EXPECT_EQ(capture.text(), rule + "100%" + rule + rule + "[a\nb]" + rule);
}
