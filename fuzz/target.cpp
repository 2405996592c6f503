// One fuzz target a family: the first byte chooses the rule, the rest are its arguments. A broken
// rule is a failed GoogleTest expectation, which ends the program here.
#include "rules.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  GTEST_FLAG_SET(throw_on_failure, true);
  testing::InitGoogleTest(argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const auto& rules = zeph_test::ZEPH_FAMILY.rules;
  zeph_test::Draw draw(bytes, size);
  rules[draw.below(rules.size())](draw);
  return 0;
}
