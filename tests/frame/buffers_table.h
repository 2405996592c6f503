// What Zeph_Copy_Mem reports of an overlay.
#ifndef ZEPH_TESTS_FRAME_BUFFERS_TABLE_H
#define ZEPH_TESTS_FRAME_BUFFERS_TABLE_H

namespace zeph_test {

const char bad_pointer[] = "[Zeph] Invalid pointer in Zeph_Copy_Mem";
const char bad_start[] = "[Zeph] StartIndex out of bounds in Zeph_Copy_Mem";
const char too_far[] = "[Zeph] Copy operation would exceed SourceString bounds in Zeph_Copy_Mem";

}  // namespace zeph_test

#endif  // ZEPH_TESTS_FRAME_BUFFERS_TABLE_H
