// Replacing and removing against what a user would write instead.
#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "bench.h"
#include "in_place.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/str_replace.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/replace.hpp>
#endif

namespace zeph_bench {
namespace {

std::string repeat(std::string_view piece, std::size_t size) {
  std::string text;
  while (text.size() < size) text += piece;
  text.resize(size);
  return text;
}

// One pass that goes on behind a replacement: what the careful user writes, in place of the
// find-and-replace loop whose cost grows with the square of the length.
std::string replace_by_append(const std::string& text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t done = 0;
  for (std::size_t at; (at = text.find(from, done)) != std::string::npos; done = at + from.size()) {
    result.append(text, done, at - done).append(to);
  }
  return result.append(text, done, std::string::npos);
}

// The same between byte texts.
[[gnu::noinline]] const char* replace_by_strstr(const char* text, const char* from, const char* to,
                                                char* out) {
  const std::size_t from_size = std::strlen(from), to_size = std::strlen(to);
  char* end = out;
  for (const char* at; (at = std::strstr(text, from)) != nullptr; text = at + from_size) {
    const auto kept = static_cast<std::size_t>(at - text);
    std::memcpy(end, text, kept);
    std::memcpy(end + kept, to, to_size);
    end += kept + to_size;
  }
  std::memcpy(end, text, std::strlen(text) + 1);
  return out;
}

// A scan with a stack: the rule of removal in one pass, written for one pattern of two bytes.
std::string remove_by_stack(const std::string& text, std::string_view pair) {
  std::string kept;
  for (const char byte : text) {
    if (byte == pair[1] && !kept.empty() && kept.back() == pair[0]) {
      kept.pop_back();
    } else {
      kept.push_back(byte);
    }
  }
  return kept;
}

// The same within a byte text.
[[gnu::noinline]] void remove_in_place(char* text, std::string_view pair) {
  char* end = text;
  for (const char* from = text; *from != '\0'; ++from) {
    if (*from == pair[1] && end != text && end[-1] == pair[0]) {
      --end;
    } else {
      *end++ = *from;
    }
  }
  *end = '\0';
}

// In a text where no removal makes a new occurrence. The rest moves at each one, so that the cost
// grows with the square of the length where there are many.
[[gnu::noinline]] void remove_by_find(std::string& text, const std::string& pattern) {
  for (std::size_t at = 0; (at = text.find(pattern, at)) != std::string::npos;) {
    text.erase(at, pattern.size());
  }
}

[[gnu::noinline]] void remove_by_strstr(char* text, const char* pattern) {
  const std::size_t size = std::strlen(pattern);
  for (char* at = text; (at = std::strstr(at, pattern)) != nullptr;) {
    std::memmove(at, at + size, std::strlen(at + size) + 1);
  }
}

// ---- the rows ----

// One text, and what is sought in it.
struct Case {
  std::string text, from, to, input;
};

void add_byte_replace_row(const Case& c) {
  const ByteCopy copy =
      byte_copy(c.text, c.text.size() * std::max<std::size_t>(c.to.size(), 1) + 1);
  const char* const from = c.from.c_str();
  const char* const to = c.to.c_str();
  auto& added = row("rewrite", "Zeph_Replace byte text", c.input, c.text.size());
  added.reason("in place: a fresh copy is part of it, and what stands behind a change moves")
      .zeph([copy, from, to] {
        char* const text = copy.fresh();
        Orbane::Zeph_Replace(text, from, to);
        return static_cast<const char*>(text);
      })
      .peer("strstr, memcpy",
            [copy, from, to] { return replace_by_strstr(copy.source, from, to, copy.room); })
      .peer("find + append", [&c] { return replace_by_append(c.text, c.from, c.to); });
#if ZEPH_BENCH_HAS_ABSEIL
  added.peer("absl::StrReplaceAll", [&c] { return absl::StrReplaceAll(c.text, {{c.from, c.to}}); });
#else
  added.missing_peer("abseil");
#endif
}

void add_string_replace_row(const Case& c) {
  StringCopy& copy = string_copy(c.text);
  auto& added = row("rewrite", "Zeph_Replace String", c.input, c.text.size());
  added.outputs(changed(copy))
      .zeph(on_a_copy(copy, [&c](std::string& text) { Orbane::Zeph_Replace(text, c.from, c.to); }))
      .peer("find + append",
            [&c, &copy] { return copy.room = replace_by_append(c.text, c.from, c.to), 0; });
#if ZEPH_BENCH_HAS_ABSEIL
  added.peer("absl::StrReplaceAll", [&c, &copy] {
    return copy.room = absl::StrReplaceAll(c.text, {{c.from, c.to}}), 0;
  });
#else
  added.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  added.peer("boost::replace_all",
             on_a_copy(copy, [&c](std::string& text) { boost::replace_all(text, c.from, c.to); }));
#else
  added.missing_peer("Boost");
#endif
}

// `searches`: the peers that search for the whole pattern take part. They cannot where the removals
// make new occurrences, and they take too long for many of them in a long text.
void add_remove_rows(const Case& c, bool searches) {
  const ByteCopy bytes = byte_copy(c.text);
  const char* const pattern = c.from.c_str();
  const char* const reason = "the peers are written for a pair, or only search";
  auto& in_bytes = row("rewrite", "Zeph_Remove byte text", c.input, c.text.size());
  in_bytes.reason(reason)
      .outputs(changed(bytes))
      .zeph(on_a_copy(bytes, [pattern](char* text) { Orbane::Zeph_Remove(text, pattern); }))
      .peer("stack of bytes",
            on_a_copy(bytes, [&c](char* text) { remove_in_place(text, c.from); }));
  StringCopy& copy = string_copy(c.text);
  auto& strings = row("rewrite", "Zeph_Remove String", c.input, c.text.size());
  strings.reason(reason)
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, [&c](std::string& text) { Orbane::Zeph_Remove(text, c.from); }))
      .peer("stack of bytes",
            [&c, &copy] { return copy.room = remove_by_stack(c.text, c.from), 0; });
  if (!searches) return;
  in_bytes.peer("strstr, memmove",
                on_a_copy(bytes, [pattern](char* text) { remove_by_strstr(text, pattern); }));
  strings.peer("find, erase",
               on_a_copy(copy, [&c](std::string& text) { remove_by_find(text, c.from); }));
}

template <char sought>
void add_byte_rows(const std::string& text, const std::string& input) {
  const char* const reason =
      "a call asks where the first one stands, which short texts do not repay";
  const ByteCopy bytes = byte_copy(text);
  StringCopy& copy = string_copy(text);
  row("rewrite", "Zeph_Replace a byte, byte text", input, text.size())
      .reason(reason)
      .outputs(changed(bytes))
      .zeph(on_a_copy(bytes, [](char* work) { Orbane::Zeph_Replace(work, sought, 'c'); }))
      .peer("strlen, std::replace", on_a_copy(bytes, [](char* work) {
              std::replace(work, work + std::strlen(work), sought, 'c');
            }));
  row("rewrite", "Zeph_Replace a byte", input, text.size())
      .reason(reason)
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, [](std::string& work) { Orbane::Zeph_Replace(work, sought, 'c'); }))
      .peer("std::replace", on_a_copy(copy, [](std::string& work) {
              std::replace(work.begin(), work.end(), sought, 'c');
            }));
  row("rewrite", "Zeph_Remove a byte", input, text.size())
      .reason(reason)
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, [](std::string& work) { Orbane::Zeph_Remove(work, sought); }))
      .peer("std::remove", on_a_copy(copy, [](std::string& work) {
              work.erase(std::remove(work.begin(), work.end(), sought), work.end());
            }));
}

// One pattern in one text, to be replaced and to be removed. `searches` as for the removal.
void add_piece_rows(const std::string& text, const std::string& from, const std::string& to,
                    const std::string& input, bool searches) {
  const Case& replaced = keep(Case{text, from, to, input + ", " + from + " -> " + to});
  add_byte_replace_row(replaced);
  add_string_replace_row(replaced);
  add_remove_rows(keep(Case{text, from, "", input + ", " + from}), searches);
}

// The first 8 bytes of the longer ones do not have what is sought.
std::string prose(std::size_t size) {
  return size == 8 ? "Pressure" : repeat("Chamber Pressure 0.75 mTorr; ", size);
}

}  // namespace

void register_rewrite_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 1024U, 4096U, 65536U, 1048576U}) {
    const std::string name = size_text(size), pairs = repeat("ab", size);
    const std::string nested = std::string(size / 2, 'a') + std::string(size / 2, 'b');
    // Many removals that move the rest take milliseconds for 64 KiB and seconds for 1 MiB.
    const bool one_by_one = size <= 4096;
    add_piece_rows(pairs, "ab", "c", name + " abab..", one_by_one);
    add_piece_rows(nested, "ab", "c", name + " aa..bb..", false);
    add_byte_rows<'b'>(pairs, name + " abab..");
    add_byte_rows<'b'>(nested, name + " aa..bb..");
    if (size == 1024) continue;  // an extra size of the pairs alone
    const std::string text = prose(size), in_prose = name + " of prose";
    add_piece_rows(text, "ss", "<s>", in_prose, one_by_one);
    add_byte_rows<'s'>(text, in_prose + ", s");
    const Case& none = keep(Case{text, "#!", "-", in_prose + ", none"});
    add_byte_replace_row(none);
    add_string_replace_row(none);
    add_remove_rows(none, true);
    add_byte_rows<'#'>(text, in_prose + ", none");
  }
}

}  // namespace zeph_bench
