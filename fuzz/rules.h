// What each family promises, as a plain statement of the rule: a check draws arguments, calls the
// library in rooms of exactly the owed size between inaccessible pages, and holds every result and
// every byte of the outputs against the simplest loop that gives them. The fuzz targets run the
// checks on bytes that a fuzzer makes, the tests on texts of every short length at every place.
//
// To add a check: a function `void name(Draw& draw)`, named in its family's list.
#ifndef ZEPH_FUZZ_RULES_H
#define ZEPH_FUZZ_RULES_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "support/draw.h"
#include "support/exported.h"
#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

struct Family {
  const char* name;
  std::vector<void (*)(Draw& draw)> rules;
};

extern const Family codepages_family, composition_family, dumps_family, fields_family,
    numbers_family, records_family, rewriting_family, search_family;
const Family* const families[] = {&codepages_family, &composition_family, &dumps_family,
                                  &fields_family,    &numbers_family,     &records_family,
                                  &rewriting_family, &search_family};

// `call` with the first `count` of the items, which are two to `most`.
template <std::size_t most, typename Items, typename Call, typename... Taken>
void with_first(std::size_t count, Items& items, Call call, Taken&... taken) {
  if constexpr (sizeof...(taken) >= 2) {
    if (sizeof...(taken) == count) return call(taken...);
  }
  if constexpr (sizeof...(taken) < most) {
    with_first<most>(count, items, call, taken..., items[sizeof...(taken)]);
  }
}

}  // namespace zeph_test

#endif  // ZEPH_FUZZ_RULES_H
