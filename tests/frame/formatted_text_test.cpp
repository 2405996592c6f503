#include "frame/formatted_text.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "frame/diagnostics.h"
#include "support/guarded_buffer.h"
#include "support/stdout_capture.h"

using namespace zeph_test;

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

TEST(FormattedText, BoundedCutsWithoutNotice) {
  GuardedBuffer buffer(16);
  EXPECT_EQ(zeph::format_bounded(buffer.data(), 16, "%s", "2025/07/29 08:05:09"), 19);
  EXPECT_STREQ(buffer.data(), "2025/07/29 08:0");
  EXPECT_EQ(zeph::format_bounded(nullptr, 0, "%d", 123), 3);
}

TEST(FormattedText, StrictWritesWhatWasMeasured) {
  const int length = zeph::measure_format("%.2lf", 0.125);
  ASSERT_EQ(length, 4);
  GuardedBuffer exact(5), tight(4);
  EXPECT_EQ(zeph::format_strict(exact.data(), 5, "%.2lf", 0.125), 4);
  EXPECT_STREQ(exact.data(), "0.12") << "a tie goes to the even digit";
  EXPECT_EQ(zeph::format_strict(tight.data(), 4, "%.2lf", 0.125), -1);
  EXPECT_STREQ(tight.data(), "");
  EXPECT_EQ(zeph::format_strict(nullptr, 0, "%d", 1), -1);
#ifndef _WIN32
  EXPECT_EQ(zeph::format_strict(exact.data(), 5, "%ls", L"\x4E2D"), -1) << "no such byte in \"C\"";
  EXPECT_STREQ(exact.data(), "");
#endif
}

TEST(FormattedText, ScanCountsFieldsAndKeepsErrno) {
  double value = 7;
  errno = 3;
  EXPECT_EQ(zeph::scan_text("1e999", "%lf", &value), 1);
  EXPECT_EQ(errno, 3);
  value = 7;
  EXPECT_NE(zeph::scan_text("x", "%lf", &value), 1);
  EXPECT_EQ(value, 7);
}
