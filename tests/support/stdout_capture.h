// What a piece of code prints on standard output.
//
//     StdoutCapture capture;
//     Orbane::Zeph_Copy_Mem(nullptr, 0, "x", 1);
//     EXPECT_EQ(capture.text(), banner("[Zeph] Invalid pointer in Zeph_Copy_Mem"));
#ifndef ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
#define ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H

#include <cstdio>
#include <mutex>
#include <string>

namespace zeph_test {

class StdoutCapture {
 public:
  StdoutCapture();
  ~StdoutCapture();  // standard output is what it was before
  StdoutCapture(const StdoutCapture&) = delete;
  StdoutCapture& operator=(const StdoutCapture&) = delete;

  std::string text();  // all that was printed since the start

 private:
  std::lock_guard<std::mutex> alone_;  // standard output is one for all threads
  int original_;
  std::FILE* file_;
};

// A report as the library prints it.
std::string banner(const std::string& message);

// `count` reports in a row.
std::string banners(long count, const std::string& message);

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
