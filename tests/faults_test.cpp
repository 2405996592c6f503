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
std::string outcome(const Fault& fault, HeapGate& gate, long first, long count) {
  gate.refuse(first, count);
  try {
    return fault.call();
  } catch (const std::bad_alloc&) {
    refuse_no_more();
    return "bad_alloc";
  }
}

}  // namespace

TEST(Faults, RefusedRequests) {
  REQUIRE_REFUSING_HEAP;
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.function);
    const std::string result = fault.call();
    EXPECT_EQ(outcome(fault, calloc_gate, 0, 0), result);
    EXPECT_EQ(calloc_gate.seen, fault.work_buffers);
    for (long first = 1; first <= fault.work_buffers; ++first) {
      for (const long count : {1L, fault.work_buffers - first + 1}) {
        EXPECT_EQ(
            stdout_of([&] { EXPECT_EQ(outcome(fault, calloc_gate, first, count), fault.refused); }),
            fault.report ? banner(fault.report, fault.stops ? 1 : count) : "");
      }
    }
    EXPECT_EQ(fault.call(), result);
    long first = 1;
    EXPECT_EQ(stdout_of([&] {
                while (outcome(fault, new_gate, first, 1) == "bad_alloc") ++first;
              }),
              "")
        << "an exception is no report";
    if (fault.work_buffers == 0 && fault.report) {
      EXPECT_GT(first, 1) << "asks for nothing";
    }
    EXPECT_EQ(fault.call(), result);
  }
}
