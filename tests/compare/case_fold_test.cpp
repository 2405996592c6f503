#include <gtest/gtest.h>

#include "compare/normalise_harness.h"

using namespace zeph_test;

TEST(CaseFold, Rows) {
  each_row(fold_rows, [](const auto& row) {
    expect_fold(lowers, row.text, row.lower);
    expect_fold(uppers, row.text, row.upper);
  });
}
