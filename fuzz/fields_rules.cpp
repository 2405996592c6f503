// Fields from the left and the right, fields by index, lists.
#include "fields/split_harness.h"
#include "rules.h"
#include "zeph.h"

namespace zeph_test {
namespace {

struct AtDelimiter {
  char delimiter;
  template <typename Text, typename... Outputs>
  void operator()(const Text& text, int limit, Outputs&... outputs) const {
    Orbane::Zeph_Seperate_Char(text, delimiter, outputs..., limit);
  }
};

// Each delimiter ends exactly one field; bytes above the limit are dropped.
Fields at_delimiter(std::size_t count, const std::string& text, std::size_t limit) {
  Fields fields(count);
  std::size_t field = 0;
  for (const char byte : text) {
    if (byte == ',' && field < count - 1) {
      ++field;
    } else if (fields[field].size() < limit) {
      fields[field] += byte;
    }
  }
  return fields;
}

void char_fields(Draw& draw) {
  const std::size_t count = 2 + draw.below(4);
  const std::size_t limit = 1 + draw.below(40);
  const std::string text = draw.text(200, ",,a\xC4");
  expect_split(AtDelimiter{','}, count, text, limit, at_delimiter(count, text, limit));
}

}  // namespace

Rules fields_rules() {
  return {{"char_fields", char_fields}};
}

}  // namespace zeph_test
