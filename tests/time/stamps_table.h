// The functions that tell the time, and their parts of "2025/07/29 08:05:09.042".
#ifndef ZEPH_TESTS_TIME_STAMPS_TABLE_H
#define ZEPH_TESTS_TIME_STAMPS_TABLE_H

#include <cstddef>
#include "zeph.h"

namespace zeph_test {

const struct {
  const char* (*get)();
  std::size_t start, size;
} stamps[] = {{Orbane::Zeph_Get_Date, 0, 10},
              {Orbane::Zeph_Get_Time, 11, 8},
              {Orbane::Zeph_Get_Time2, 11, 12},
              {Orbane::Zeph_Get_DateTime, 0, 19},
              {Orbane::Zeph_Get_DateTime2, 0, 23}};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_TIME_STAMPS_TABLE_H
