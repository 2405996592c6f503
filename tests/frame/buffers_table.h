// Calls of the buffer functions and what they leave.
#ifndef ZEPH_TESTS_FRAME_BUFFERS_TABLE_H
#define ZEPH_TESTS_FRAME_BUFFERS_TABLE_H

#include <cfloat>
#include <climits>
#include <string>
#include <vector>

namespace zeph_test {

const char bad_pointer[] = "[Zeph] Invalid pointer in Zeph_Copy_Mem";
const char bad_start[] = "[Zeph] StartIndex out of bounds in Zeph_Copy_Mem";
const char too_far[] = "[Zeph] Copy operation would exceed SourceString bounds in Zeph_Copy_Mem";

const struct {
  const char* why;
  const char* target;
  int start;
  const char* source;
  int count;
  const char* report;  // NULL where the bytes are written
  const char* result;
} overlays[] = {
    {"up to the terminator", "abcd", 2, "XY", -1, nullptr, "abXY"},
    {"one too far", "abcd", 3, "XY", -1, too_far, "abcd"},
    {"on the terminator", "abcd", 4, "XY", -1, bad_start, "abcd"},
    {"negative start", "abcd", -1, "XY", -1, bad_start, "abcd"},
    {"empty target", "", 0, "", 0, bad_start, ""},
    {"count cuts", "abcd", 3, "XY", 1, nullptr, "abcX"},
    {"count 0", "abcd", 0, "XY", 0, nullptr, "abcd"},
    {"count beyond the source", "abcd", 0, "XY", 9, nullptr, "XYcd"},
    {"least count", "abcd", 1, "XY", INT_MIN, nullptr, "aXYd"},
    {"no source", "abcd", 9, nullptr, 1, bad_pointer, "abcd"},
    {"no target", nullptr, 0, "XY", 1, bad_pointer, nullptr},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_FRAME_BUFFERS_TABLE_H
