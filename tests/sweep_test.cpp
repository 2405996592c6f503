// Every rule on texts of each length from 0 to 130, in rooms that end at an inaccessible page, and
// in rooms that start at each of the first 64 places behind one. Under a sanitizer, where all takes
// ten times as long, at some of them.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "rules.h"
#include "support/guarded_buffer.h"

namespace zeph_test {

static void PrintTo(const Family& family, std::ostream* out) {
  *out << family.name;
}

}  // namespace zeph_test

using namespace zeph_test;

namespace {

class Sweep : public testing::TestWithParam<Family> {};

void check_each_length(const Rule& rule, Placement placement, std::size_t round) {
  const ScopedPlacement here(placement);
  for (std::size_t length = 0; length <= 130; ++length) {
    Draw draw(static_cast<unsigned>(131 * round + length + 1));
    draw.fix_length(length);
    SCOPED_TRACE("length " + std::to_string(length));
    rule.check(draw);
  }
}

}  // namespace

TEST_P(Sweep, EveryLengthAtEveryPlace) {
  for (const Rule& rule : GetParam().rules()) {
    SCOPED_TRACE(rule.name);
    for (std::size_t i = 0; i < 64; i += 64 / ZEPH_SWEEP_PLACES) {
      check_each_length(rule, {Edge::back, 0}, i);
      check_each_length(rule, {Edge::front, i}, i + 64);
    }
  }
}

TEST_P(Sweep, RandomArguments) {
  for (const Rule& rule : GetParam().rules()) {
    SCOPED_TRACE(rule.name);
    for (unsigned seed = 1; seed <= 312 * ZEPH_SWEEP_PLACES; ++seed) {
      Draw draw(seed);
      rule.check(draw);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Families, Sweep, testing::ValuesIn(families),
                         [](const auto& family) { return std::string(family.param.name); });
