// One field by its index, and the index of a value.
#include <strings.h>

#include <climits>
#include <cstring>
#include <string_view>

#include "fields/field_outputs.h"
#include "frame/owned_buffers.h"
#include "scan/find_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char blank = ' ';

const char* skip_separators(const char* text, char separator) {
  while (*text == separator && *text != '\0') ++text;
  return text;
}

// Copies word number `index`; words are what stands between runs of separators.
void put_word(char* out, const char* text, char separator, int index, std::size_t limit) {
  for (; index >= 0; --index) {
    text = skip_separators(text, separator);
    const char* const end = find_byte_or_end(text, separator);
    if (index == 0) return put_field(out, text, end, limit);
    if (*end == '\0') break;
    text = end;
  }
  *out = '\0';
}

// The items are those that splitting a field off the front gives, again and again, until nothing is
// left: an empty rest is no item.
template <typename Equals>
int find_item(const char* list, char separator, SeparatorRun run, Equals equals) {
  // The interface promises two work buffers, with a report for each that the heap refuses, and no
  // walk without them. The walk itself moves nothing and so needs no room of its own.
  const WorkBuffers<2> work(std::strlen(list) + 1);
  if (!work.complete()) return -1;
  for (std::size_t index = 0; *list != '\0'; ++index) {
    const char* const end = find_byte_or_end(list, separator);
    if (equals(std::string_view(list, static_cast<std::size_t>(end - list)))) {
      return index < INT_MAX ? static_cast<int>(index) : INT_MAX;
    }
    list = *end == '\0' ? end : end + 1;
    if (run == SeparatorRun::one_separator) list = skip_separators(list, separator);
  }
  return -1;
}

int find_exact(const char* list, char separator, SeparatorRun run, std::string_view value) {
  return find_item(list, separator, run, [&](std::string_view item) { return item == value; });
}

int find_folded(const char* list, char separator, SeparatorRun run, std::string_view value) {
  return find_item(list, separator, run, [&](std::string_view item) {
    return item.size() == value.size() && strncasecmp(item.data(), value.data(), item.size()) == 0;
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
