// UTF-8 and code page 936.
#include "codepage/codepage_model.h"
#include "codepage/parts_table.h"
#include "rules.h"

namespace zeph_test {
namespace {

void any_bytes(Draw& draw) {
  expect_conversions(
      draw.text(100, draw.yes() ? "a\x80\x90\xA0\xB8\xC3\xE0\xE4\xED\xF0\xF4@0" : ""));
}

// Characters of each kind, runs of them and faults between them.
void mixtures(Draw& draw) {
  std::string text = draw.text(9, draw.yes() ? "a" : "");
  const auto& parts = draw.yes() ? utf8_parts : ansi_parts;
  for (std::size_t left = draw.below(12); left > 0; --left) {
    const std::string& part = parts[draw.below(parts.size())];
    const std::size_t kind = draw.below(100);
    for (std::size_t count = kind == 0 ? 300 : kind < 20 ? 9 : 1; count > 0; --count) text += part;
  }
  expect_conversions(text);
  if (!text.empty()) text[draw.below(text.size())] = static_cast<char>(draw.byte() | 1);
  expect_conversions(text);
}

// A text of characters that the code page has both ways comes back.
void round_trips(Draw& draw) {
  const auto& page = code_page().unit_of;
  std::string text, ansi;
  for (std::size_t left = draw.text(40).size(); left > 0; --left) {
    auto at = page.lower_bound({static_cast<char>(draw.byte()), static_cast<char>(draw.byte())});
    if (at == page.end() || at->second == 0) at = page.find("a");
    ansi += at->first;
    text += utf8(at->second);
  }
  EXPECT_EQ(Orbane::Zeph_ANSI_to_UTF8(ansi), text);
  EXPECT_EQ(Orbane::Zeph_UTF8_to_ANSI(text), ansi);
}

}  // namespace

const Family codepages_family{"codepages", {any_bytes, mixtures, round_trips}};

}  // namespace zeph_test
