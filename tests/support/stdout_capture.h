// What a piece of code prints on standard output, and reports as the library prints them.
//
//     EXPECT_EQ(stdout_of([] { Orbane::Zeph_Copy_Mem(nullptr, 0, "x", 1); }),
//               banner("[Zeph] Invalid pointer in Zeph_Copy_Mem"));
#ifndef ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
#define ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H

#include <gtest/gtest.h>

#include <functional>
#include <mutex>
#include <string>

namespace zeph_test {

inline std::string stdout_of(const std::function<void()>& call) {
  static std::mutex capturing;  // standard output is one for all threads
  const std::lock_guard<std::mutex> alone(capturing);
  testing::internal::CaptureStdout();
  call();
  return testing::internal::GetCapturedStdout();
}

inline std::string banner(const std::string& message, long count = 1) {
  const std::string rule(48, '-'), one = rule + message + rule;
  return count > 0 ? one + banner(message, count - 1) : "";
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_STDOUT_CAPTURE_H
