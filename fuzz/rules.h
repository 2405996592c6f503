// What each family promises, as a plain statement of the rule: a check draws arguments, calls the
// library in rooms of exactly the owed size between inaccessible pages, and holds every result and
// every byte of the outputs against the simplest loop that gives them. The fuzz targets run the
// checks on bytes that a fuzzer makes, the tests on texts of every short length at every place.
//
// To add a check: a function `void name(Draw& draw)` and a line in its family's list.
#ifndef ZEPH_FUZZ_RULES_H
#define ZEPH_FUZZ_RULES_H

#include <vector>

#include "support/draw.h"

namespace zeph_test {

struct Rule {
  const char* name;
  void (*check)(Draw& draw);
};
using Rules = std::vector<Rule>;

Rules codepages_rules();
Rules composition_rules();
Rules dumps_rules();
Rules fields_rules();
Rules numbers_rules();
Rules records_rules();
Rules rewriting_rules();
Rules search_rules();

const struct Family {
  const char* name;
  Rules (*rules)();
} families[] = {
    {"codepages", codepages_rules},      // UTF-8 and code page 936
    {"composition", composition_rules},  // append, print, alarm texts, buffers
    {"dumps", dumps_rules},              // hex dumps, message names
    {"fields", fields_rules},            // from the left and right, by index, lists
    {"numbers", numbers_rules},          // integers, reals, reals as texts
    {"records", records_rules},          // sealed texts
    {"rewriting", rewriting_rules},      // replace, remove, enclosing marks
    {"search", search_rules},            // search, slices, markers, comparison, case, blanks
};

}  // namespace zeph_test

#endif  // ZEPH_FUZZ_RULES_H
