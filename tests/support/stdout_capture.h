// What a piece of code prints on standard output.
//
//     StdoutCapture capture;
//     Orbane::Zeph_Copy_Mem(nullptr, 0, "x", 1);
//     EXPECT_EQ(capture.text(), banner("[Zeph] Invalid pointer in Zeph_Copy_Mem"));
#ifndef ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
#define ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H

#include <gtest/gtest.h>

#include <mutex>
#include <string>

namespace zeph_test {

class StdoutCapture {
 public:
  StdoutCapture() : alone_(capturing()) {
    testing::internal::CaptureStdout();
  }
  ~StdoutCapture() {
    if (!ended_) testing::internal::GetCapturedStdout();
  }
  StdoutCapture(const StdoutCapture&) = delete;
  StdoutCapture& operator=(const StdoutCapture&) = delete;

  // All that was printed since the start; ends the capture.
  std::string text() {
    ended_ = true;
    return testing::internal::GetCapturedStdout();
  }

 private:
  static std::mutex& capturing() {  // standard output is one for all threads
    static std::mutex mutex;
    return mutex;
  }
  std::lock_guard<std::mutex> alone_;
  bool ended_ = false;
};

// A report as the library prints it, `count` times in a row.
inline std::string banners(long count, const std::string& message) {
  const std::string rule(48, '-');
  std::string all;
  for (long i = 0; i < count; ++i) all += rule + message + rule;
  return all;
}

inline std::string banner(const std::string& message) {
  return banners(1, message);
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
