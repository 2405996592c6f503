// Every rule on texts of each length from 0 to 130, in rooms that end at an inaccessible page, and
// in rooms that start at each of the first 64 places behind one. Under a sanitizer, where all takes
// ten times as long, at some of them.
#include "rules.h"

using namespace zeph_test;

namespace {

class Sweep : public testing::TestWithParam<const Family*> {
 protected:
  template <typename Check>
  void each_rule(Check check) {
    for (std::size_t i = 0; i < GetParam()->rules.size(); ++i) {
      SCOPED_TRACE("rule " + std::to_string(i));
      check(GetParam()->rules[i]);
    }
  }
};

}  // namespace

TEST_P(Sweep, EveryLengthAtEveryPlace) {
  each_rule([](auto rule) {
    for (unsigned i = 0; i < 128; i += 64 / ZEPH_SWEEP_PLACES) {
      const ScopedPlacement here({i < 64 ? Edge::back : Edge::front, i < 64 ? 0 : i - 64});
      for (unsigned length = 0; length <= 130; ++length) {
        Draw draw(131 * i + length + 1);
        draw.fix_length(length);
        SCOPED_TRACE("length " + std::to_string(length));
        rule(draw);
      }
    }
  });
}

TEST_P(Sweep, RandomArguments) {
  each_rule([](auto rule) {
    for (unsigned seed = 1; seed <= 312 * ZEPH_SWEEP_PLACES; ++seed) {
      Draw draw(seed);
      rule(draw);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Families, Sweep, testing::ValuesIn(families),
                         [](const auto& family) { return std::string(family.param->name); });
