// What the readers of integers and of real numbers share: they take slices in the same way.
#ifndef ZEPH_TESTS_NUMBER_SLICE_HARNESS_H
#define ZEPH_TESTS_NUMBER_SLICE_HARNESS_H

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"

namespace zeph_test {

// `check(text, slice...)` for byte texts and Strings, which end at a zero byte, and their slices.
template <typename Check>
void each_form(const std::string& bytes, Check check) {
  const auto size = static_cast<int>(bytes.size());
  const std::string ended = bytes + '\0' + "1";
  check(at_edge(bytes));
  check(ended);
  check(at_edge("12" + bytes, End::bare), 2, size);
  check("12" + ended, 2, size + 2);
}

template <typename Number, typename Read>
void expect_work_buffer(Read read) {
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  for (const int count : {2, -1, INT_MIN}) {
    heap.refuse_calloc(1);
    StdoutCapture capture;
    Number value = -77;
    EXPECT_FALSE(read("12", &value, 0, count));
    EXPECT_EQ(value, -77);
    EXPECT_EQ(heap.callocs(), count < 0 ? 0 : 1);
    EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}

// 255 bytes without a buffer of the caller's, any number with one.
template <typename Extract>
void expect_lenient_limits(Extract extract, const std::string& message) {
  const GuardedText text(std::string(254, '0') + "7" + std::string(45, 'x'), End::bare);
  EXPECT_EQ(extract(text.data(), 0, 255), 7);
  for (const int count : {256, INT_MAX, -1, INT_MIN}) {
    StdoutCapture capture;
    EXPECT_EQ(extract(text.data(), 0, count), 0);
    EXPECT_EQ(capture.text(), banner(message));
  }
  const GuardedBuffer work(301);
  StdoutCapture capture;
  EXPECT_EQ(extract(text.data(), 0, -1, work.data()), 0);
  EXPECT_TRUE(work.untouched());
  EXPECT_EQ(extract(text.data(), 250, 5, work.data()), 7);
  EXPECT_TRUE(work.untouched(6));
  EXPECT_EQ(extract(text.data(), 0, 300, work.data()), 7);
  EXPECT_EQ(std::strlen(work.data()), 300u);
  EXPECT_EQ(capture.text(), "");
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_SLICE_HARNESS_H
