#include <gtest/gtest.h>

#include <string>

#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(MessageName, StreamAndFunction) {
  each_row(message_names, [](const auto& row) {
    GuardedText text(row.text);
    const bool valid = row.stream >= 0;
    unsigned char stream = 77, function = 78;
    EXPECT_EQ(Orbane::Zeph_Check_SxxFxx(text.data(), &stream, &function), valid);
    EXPECT_EQ(stream, valid ? row.stream : 77);
    EXPECT_EQ(function, valid ? row.function : 78);
    EXPECT_EQ(Orbane::Zeph_Check_SxxFxx(text.data(), nullptr, nullptr), valid);
  });
}

TEST(MessageName, RefusedWorkBufferIsReported) {
  REQUIRE_REFUSING_HEAP;
  for (const long refused : {1L, 2L}) {
    RefusingHeap heap;
    heap.refuse_calloc(refused);
    StdoutCapture capture;
    EXPECT_FALSE(Orbane::Zeph_Check_SxxFxx("S1F13", nullptr, nullptr));
    EXPECT_EQ(heap.callocs(), refused);
    EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}
