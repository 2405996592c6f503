// Each request to the heap refused in turn: the result, the outputs and the report are those of the
// documented refusal, and the same call works again afterwards. That nothing is lost shows where a
// checker looks for lost blocks at the end of the program.
#include <gtest/gtest.h>

#include <new>

#include "faults_table.h"
#include "support/stdout_capture.h"

using namespace zeph_test;

namespace {

// What the call came to with the `first` request and those behind it refused, `count` in all.
std::string outcome(const Fault& fault, void (RefusingHeap::*refuse)(long, long), long first,
                    long count) {
  RefusingHeap heap;
  (heap.*refuse)(first, count);
  try {
    return fault.call();
  } catch (const std::bad_alloc&) {
    RefusingHeap::refuse_no_more();
    return "bad_alloc";
  }
}

}  // namespace

TEST(Faults, RefusedWorkBuffers) {
  REQUIRE_REFUSING_HEAP;
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.function);
    const std::string result = fault.call();
    {
      const RefusingHeap heap;
      fault.call();
      EXPECT_EQ(heap.callocs(), fault.work_buffers);
    }
    for (long first = 1; first <= fault.work_buffers; ++first) {
      for (const long count : {1L, fault.work_buffers - first + 1}) {
        StdoutCapture capture;
        EXPECT_EQ(outcome(fault, &RefusingHeap::refuse_calloc, first, count), fault.refused);
        EXPECT_EQ(capture.text(),
                  fault.report ? banners(fault.stops ? 1 : count, fault.report) : "");
      }
    }
    EXPECT_EQ(fault.call(), result);
  }
}

TEST(Faults, RefusedStrings) {
  REQUIRE_REFUSING_HEAP;
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.function);
    const std::string result = fault.call();
    long first = 1;
    StdoutCapture capture;
    while (outcome(fault, &RefusingHeap::refuse_new, first, 1) == "bad_alloc") ++first;
    if (fault.work_buffers == 0 && fault.report) {
      EXPECT_GT(first, 1) << "asks for nothing";
    }
    EXPECT_EQ(capture.text(), "") << "an exception is no report";
    EXPECT_EQ(fault.call(), result);
  }
}
