// One field by its index, and the index of a value.
#include <strings.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <string_view>

#include "fields/field_outputs.h"
#include "frame/locale_fold.h"
#include "frame/owned_buffers.h"
#include "scan/byte_mask.h"
#include "scan/count_byte.h"
#include "scan/find_byte.h"
#include "scan/find_needle.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

constexpr char blank = ' ';

const char* skip_separators(const char* text, char separator) {
  while (*text == separator && *text != '\0') ++text;
  return text;
}

// Behind that many words, or the terminator; words are what stands between runs of separators.
[[gnu::noinline]] const char* skip_words(const char* text, char separator, int count) {
  for (; count > 0 && *text != '\0'; --count) {
    text = find_byte_or_end(skip_separators(text, separator), separator);
  }
  return text;
}

// From that many words on their separators are counted, many at a look.
constexpr int many_words = 4;

// Steps over the runs of separators that end in the next 64 bytes, none behind the terminator, and
// takes them off `runs`. Returns whether that is all: `text` is behind the last run then, or at the
// terminator.
bool skip_a_look(const char*& text, char separator, std::size_t& runs) {
  const std::size_t size = strnlen(text, mask_bytes);
  std::uint64_t ends = byte_mask(text, size, separator) & ~byte_mask(text + 1, size, separator);
  for (; ends != 0; ends &= ends - 1) {
    if (--runs > 0) continue;
    text += lowest_place(ends) + 1;
    return true;
  }
  text += size;
  return size < mask_bytes;
}

// As skip_words(). A whole part is passed by its count alone, once the first look has not been
// enough.
[[gnu::noinline]] const char* skip_many_words(const char* text, char separator, int count) {
  constexpr std::size_t part = 512;
  auto runs = static_cast<std::size_t>(count);
  text = skip_separators(text, separator);
  if (skip_a_look(text, separator, runs)) return text;
  while (std::memchr(text, '\0', part) == nullptr) {
    const std::size_t found = count_runs(text, part, separator);
    if (found >= runs) break;
    runs -= found;
    text += part;
  }
  while (!skip_a_look(text, separator, runs)) continue;
  return text;
}

void put_word(char* out, const char* text, char separator, int index, std::size_t limit) {
  if (index < 0) {
    *out = '\0';
    return;
  }
  if (index >= many_words) {
    text = skip_many_words(text, separator, index);
  } else if (index > 0) {
    text = skip_words(text, separator, index);
  }
  text = skip_separators(text, separator);
  put_field(out, text, find_byte_or_end(text, separator), limit);
}

int to_index(std::size_t count) {
  return count < INT_MAX ? static_cast<int>(count) : INT_MAX;
}

// A list and how it is cut. The items are those that splitting a field off the front gives, again
// and again, until nothing is left: an empty rest is no item.
struct List {
  View text;
  char separator;
  SeparatorRun run;
  char* room;  // as many bytes as the text has, and one more

  // Whether the bytes from `begin` to `end`, none of which is a separator, are a whole item.
  bool is_item(std::size_t begin, std::size_t end) const {
    return (begin == 0 || text[begin - 1] == separator) &&
           (end == text.size() || text[end] == separator);
  }
  // How many items stand in front of the one that starts at `begin`.
  std::size_t items_before(std::size_t begin) const {
    return run == SeparatorRun::each_cuts ? count_byte(text.data(), begin, separator)
                                          : count_runs(text.data(), begin, separator);
  }
};

// The places of the separators, one after the other, found many at a look.
class Separators {
 public:
  explicit Separators(const List& list) : text_(list.text), separator_(list.separator) {}

  // The size of the text behind the last one.
  std::size_t next() {
    while (places_ == 0) {
      if (looked_ == text_.size()) return text_.size();
      look_ = looked_;
      const std::size_t size = std::min(mask_bytes, text_.size() - look_);
      places_ = byte_mask(text_.data() + look_, size, separator_);
      looked_ += size;
    }
    const std::size_t at = look_ + lowest_place(places_);
    places_ &= places_ - 1;
    return at;
  }

 private:
  View text_;
  char separator_;
  std::size_t look_ = 0, looked_ = 0;
  std::uint64_t places_ = 0;
};

// Item by item.
template <typename Value>
int walk_to_item(const List& list, Value sought) {
  const View text = list.text;
  Separators separators(list);
  std::size_t begin = 0;
  for (std::size_t index = 0; begin < text.size(); ++index) {
    const std::size_t end = separators.next();
    if (sought.equals(text.substr(begin, end - begin))) return to_index(index);
    begin = end + 1;
    if (list.run == SeparatorRun::each_cuts) continue;
    while (begin < text.size() && text[begin] == list.separator) begin = separators.next() + 1;
  }
  return -1;
}

// What a value is equal to: the same bytes, or letters of the other case as well.
struct ExactValue {
  View value;

  bool equals(View item) const {
    return item == value;
  }
  std::size_t find_in(View text) const {
    return find_needle(text, value);
  }
  std::uint64_t places_of_last(View text) const {
    return byte_mask(text.data(), text.size(), value.back());
  }
};
struct FoldedValue {
  View value;

  bool equals(View item) const {
    return item.size() == value.size() && strncasecmp(item.data(), value.data(), item.size()) == 0;
  }
  std::size_t find_in(View text) const {
    return find_needle_ignoring_case(text, value);
  }
  std::uint64_t places_of_last(View text) const {
    const auto places = [text, this](LetterCase to) {
      return byte_mask(text.data(), text.size(), ascii_fold(to, value.back()));
    };
    return places(LetterCase::lower) | places(LetterCase::upper);
  }
};

// For less text than one mask covers: the places where an item of the value's size starts, and ends
// as the value does, all at once.
template <typename Value>
int find_item_at_a_look(const List& list, Value sought) {
  const View text = list.text;
  const std::size_t size = sought.value.size();
  if (size > text.size()) return -1;
  const std::uint64_t separators = byte_mask(text.data(), text.size(), list.separator);
  const std::uint64_t ends = separators | std::uint64_t{1} << text.size();
  std::uint64_t begins = (separators << 1 | 1) & ends >> size;
  if (begins != 0) begins &= sought.places_of_last(text) >> (size - 1);
  for (; begins != 0; begins &= begins - 1) {
    const std::size_t at = lowest_place(begins);
    if (sought.equals(text.substr(at, size))) return to_index(list.items_before(at));
  }
  return -1;
}

// Whether one look before any search tells that the first item is the value. A value that
// ends in the other case is left to the search.
template <typename Value>
bool is_plainly_first(const List& list, Value sought) {
  const View text = list.text;
  const std::size_t size = sought.value.size();
  if (size == 0 || size > text.size() || text[size - 1] != sought.value.back()) return false;
  if (size < text.size() && text[size] != list.separator) return false;
  const View front = text.substr(0, size);
  return sought.equals(front) && front.find(list.separator) == View::npos;
}

// The first item behind `from` that is the value: one between two separators, or the last one. The
// value with separators around it is put together in a work buffer, which has room for it.
template <typename Value>
int find_enclosed(const List& list, std::size_t from, Value sought) {
  const View text = list.text, value = sought.value;
  if (value.size() + 2 <= text.size()) {
    char* const enclosed = list.room;
    enclosed[0] = enclosed[value.size() + 1] = list.separator;
    std::memcpy(enclosed + 1, value.data(), value.size());
    const Value whole{{enclosed, value.size() + 2}};
    const std::size_t found = whole.find_in(text.substr(from));
    if (found != View::npos) return to_index(list.items_before(from + found + 1));
  }
  const std::size_t last = text.size() - value.size();
  const bool there = list.is_item(last, text.size()) && sought.equals(text.substr(last));
  return there ? to_index(list.items_before(last)) : -1;
}

// The value is searched for as a whole, and the separators in front of it are counted.
template <typename Value>
int find_item(const List& list, Value sought) {
  const View value = sought.value;
  if (list.separator == '\0' || value.empty()) return walk_to_item(list, sought);
  if (value.find(list.separator) != View::npos) return -1;
  if (list.text.size() < mask_bytes) return find_item_at_a_look(list, sought);
  const std::size_t begin = sought.find_in(list.text);
  if (begin == View::npos) return -1;
  if (list.is_item(begin, begin + value.size())) return to_index(list.items_before(begin));
  return find_enclosed(list, begin, sought);
}

// The interface promises two work buffers, with a report for each that the heap refuses, and no
// search without them. The search moves nothing: it needs little more than a value's room, in one.
template <typename Search>
int search_with_buffers(const char* list, char separator, SeparatorRun run, Search search) {
  const View text(list);
  const bool granted = heap_grants(1, text.size() + 1);
  const WorkBuffers<1> work(text.size() + 1);
  return granted && work.complete() ? search(List{text, separator, run, work[0]}) : -1;
}

int find_exact(const char* list_text, char separator, SeparatorRun run, const char* value) {
  return search_with_buffers(list_text, separator, run, [value](const List& list) {
    const ExactValue sought{value};
    return is_plainly_first(list, sought) ? 0 : find_item(list, sought);
  });
}

int find_folded(const char* list_text, char separator, SeparatorRun run, const char* value) {
  return search_with_buffers(list_text, separator, run, [value](const List& list) {
    const FoldedValue sought{value};
    if (is_plainly_first(list, sought)) return 0;
    // A value in the other case must not run over a letter that separates.
    const bool letter = ascii_fold(LetterCase::lower, list.separator) !=
                        ascii_fold(LetterCase::upper, list.separator);
    if (letter || !locale_folds_ascii(LetterCase::lower)) return walk_to_item(list, sought);
    return find_item(list, sought);
  });
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Seperate_With_Index(const char* text, char* out, int index, int limit) {
  zeph::put_word(out, text, zeph::blank, index, zeph::field_limit(limit));
}

void Zeph_Seperate_Char_With_Index(const char* text, char delimiter, char* out, int index,
                                   int limit) {
  zeph::put_word(out, text, delimiter, index, zeph::field_limit(limit));
}

int Zeph_Seperate_Get_Index(const char* list, const char* value) {
  return zeph::find_exact(list, zeph::blank, zeph::SeparatorRun::one_separator, value);
}

int Zeph_Seperate_Get_Index_L(const char* list, const char* value) {
  return zeph::find_folded(list, zeph::blank, zeph::SeparatorRun::one_separator, value);
}

int Zeph_Seperate_Char_Get_Index(const char* list, char delimiter, const char* value) {
  return zeph::find_exact(list, delimiter, zeph::SeparatorRun::each_cuts, value);
}

int Zeph_Seperate_Char_Get_Index_L(const char* list, char delimiter, const char* value) {
  return zeph::find_folded(list, delimiter, zeph::SeparatorRun::each_cuts, value);
}

}  // namespace Orbane
