// One fuzz target a family: the first byte chooses the rule, the rest are its arguments. A broken
// rule is a failed GoogleTest expectation, which ends the program here.
#include <gtest/gtest.h>

#include <cstring>

#include "rules.h"

namespace {

zeph_test::Rules rules_of(const char* family) {
  for (const auto& each : zeph_test::families) {
    if (std::strcmp(each.name, family) == 0) return each.rules();
  }
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  GTEST_FLAG_SET(throw_on_failure, true);
  testing::InitGoogleTest(argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const zeph_test::Rules rules = rules_of(ZEPH_FAMILY);
  zeph_test::Draw draw(bytes, size);
  rules[draw.below(rules.size())].check(draw);
  return 0;
}
