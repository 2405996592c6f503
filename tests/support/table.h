// Table tests: a struct with a `why`, an array of rows, one loop. A failing row names itself.
#ifndef ZEPH_TESTS_SUPPORT_TABLE_H
#define ZEPH_TESTS_SUPPORT_TABLE_H

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace zeph_test {

template <typename Row, std::size_t count, typename Check>
void each_row(const Row (&rows)[count], Check check) {
  for (std::size_t i = 0; i < count; ++i) {
    SCOPED_TRACE("row " + std::to_string(i) + ": " + rows[i].why);
    check(rows[i]);
  }
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_TABLE_H
