// Bytes and pieces of a text are replaced or cut out in place.
//
// Some forms go on behind a change, others look again from the start of the text, so that what the
// changes themselves form is changed too. Going back costs no walk from the start: behind a change
// only the last bytes in front of it can take part in a new occurrence, one byte less than the
// pattern has. They are searched again together with what follows, and nothing else is.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "frame/owned_buffers.h"
#include "scan/find_needle.h"
#include "scan/move_bytes.h"
#include "scan/remove_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

// Nothing is written in front of the first match, nor where there is none. From there on every byte
// is stored, changed or not: that way the loop is wide.
void replace_bytes(char* text, std::size_t size, char find, char replacement) {
  std::size_t i = View(text, size).find(find);
  for (; i < size; ++i) text[i] = text[i] == find ? replacement : text[i];
}

// The next occurrence. Where they stand close together, a look at the first bytes is cheaper than
// the start of a wide search.
std::size_t find_next(View text, View pattern) {
  constexpr std::size_t near = 16;
  const std::size_t first = near < text.size() ? near : text.size();
  for (std::size_t at = 0; at < first; ++at) {
    if (text[at] == pattern[0] && text.compare(at, pattern.size(), pattern) == 0) return at;
  }
  const std::size_t at = find_needle(text.substr(first), pattern);
  return at == View::npos ? at : at + first;
}

enum class AfterChange { look_again, go_on };

// A text being rewritten inside one buffer: what is done, a gap, and what is still to be searched.
//
//     bytes  [ 0 .. done )  gap  [ rest .. end )
struct GapText {
  char* bytes;
  std::size_t done, rest, end;

  std::size_t gap() const {
    return rest - done;
  }
  View unsearched() const {
    return {bytes + rest, end - rest};
  }
  // Whether these few bytes are the last ones that are done.
  bool ends_with(View top) const {
    if (top.size() > done) return false;
    std::size_t same = 0;
    while (same < top.size() && bytes[done - 1 - same] == top[top.size() - 1 - same]) ++same;
    return same == top.size();
  }
  // The next `n` bytes are done.
  void pass(std::size_t n) {
    if (done == rest) {
      done = rest += n;
      return;
    }
    move_bytes(bytes + done, bytes + rest, n);
    done += n;
    rest += n;
  }
  // The last `n` bytes that are done stand in front of the rest again.
  void take_back(std::size_t n) {
    done -= n;
    rest -= n;
    move_bytes(bytes + rest, bytes + done, n);
  }
};

void put(char* to, View bytes) {
  if (!bytes.empty()) move_bytes(to, bytes.data(), bytes.size());
}

// Changes the occurrence of `pattern` at index `at` of the rest. The gap has the room.
void change(GapText& text, std::size_t at, View pattern, View replacement, AfterChange then) {
  text.pass(at);
  text.rest += pattern.size();
  if (then == AfterChange::go_on) {
    put(text.bytes + text.done, replacement);
    text.done += replacement.size();
    return;
  }
  text.rest -= replacement.size();
  put(text.bytes + text.rest, replacement);
  text.take_back(std::min(pattern.size() - 1, text.done));
}

// Behind a change others are often near: byte by byte, the bytes that are done are a stack on whose
// top the pattern shows up. Ends where none did for a while; the bytes that may start an occurrence
// stand in front of the rest again. The replacement is shorter than the pattern.
GapText change_near(GapText text, View pattern, View replacement) {
  constexpr std::size_t quiet = 32;
  const std::size_t last = pattern.size() - 1;
  for (std::size_t left = quiet; left > 0 && text.rest != text.end; --left) {
    const char next = text.bytes[text.rest++];
    if (next != pattern[last] || !text.ends_with(pattern.substr(0, last))) {
      text.bytes[text.done++] = next;
      continue;
    }
    text.done -= last;
    text.rest -= replacement.size();
    put(text.bytes + text.rest, replacement);
    left = quiet;
  }
  text.take_back(std::min(last, text.done));
  return text;
}

// Changes all occurrences and closes the gap. Returns the new size. The gap never gets too small:
// the replacement is no longer than the pattern, or the gap was made for all changes together.
std::size_t change_all(GapText text, View pattern, View replacement, AfterChange then) {
  for (;;) {
    const std::size_t at = find_next(text.unsearched(), pattern);
    if (at == View::npos) break;
    change(text, at, pattern, replacement, then);
    // Where each byte asks for a comparison, only short patterns keep the whole linear.
    if (then == AfterChange::look_again && pattern.size() <= 16) {
      text = change_near(text, pattern, replacement);
    }
  }
  text.pass(text.end - text.rest);
  return text.done;
}

std::size_t count_needles(View text, View needle) {
  std::size_t count = 0;
  for (std::size_t at; (at = find_next(text, needle)) != View::npos; ++count) {
    text.remove_prefix(at + needle.size());
  }
  return count;
}

// Can an occurrence of the pattern arise that lies partly in a replacement? "Yes" may be wrong for
// long patterns; the answer only chooses between two ways to the same bytes. The replacement is not
// shorter than the pattern.
bool can_form(View pattern, View replacement) {
  constexpr std::size_t longest_tested = 64;
  if (pattern.size() > longest_tested) return true;
  for (std::size_t n = 1; n < pattern.size(); ++n) {
    const View head = pattern.substr(0, n), tail = pattern.substr(pattern.size() - n);
    if (replacement.substr(0, n) == tail) return true;
    if (replacement.substr(replacement.size() - n) == head) return true;
  }
  return false;
}

// No change forms another one: the text is moved up by all that it grows, in its own buffer, and
// rewritten from there.
std::size_t replace_apart(char* text, std::size_t size, View pattern, View replacement) {
  const std::size_t step = replacement.size() - pattern.size();
  const std::size_t growth = step == 0 ? 0 : step * count_needles({text, size}, pattern);
  std::memmove(text + growth, text, size);
  return change_all({text, 0, growth, growth + size}, pattern, replacement, AfterChange::go_on);
}

// A rewriting on the heap that may be given up: pairs such as "ab" and "bbaa" never end, and others
// end after more steps than anybody waits for.
class HeapRewriting {
 public:
  explicit HeapRewriting(View text) : text_{nullptr, 0, 0, text.size()}, block_size_(text.size()) {
    text_.bytes = request_block(block_size_ + 1);
    if (text_.bytes) put(text_.bytes, text);
  }
  ~HeapRewriting() {
    release_block(text_.bytes);
  }
  HeapRewriting(const HeapRewriting&) = delete;
  HeapRewriting& operator=(const HeapRewriting&) = delete;

  // False if it was given up.
  bool run(View pattern, View replacement, std::size_t most_changes) {
    if (!text_.bytes) return false;
    for (std::size_t changes = 0;; ++changes) {
      const std::size_t at = find_next(text_.unsearched(), pattern);
      if (at == View::npos) break;
      if (changes == most_changes || !make_gap(replacement.size())) return false;
      change(text_, at, pattern, replacement, AfterChange::look_again);
    }
    text_.pass(text_.end - text_.rest);
    return true;
  }
  View result() const {
    return {text_.bytes, text_.done};
  }

 private:
  bool make_gap(std::size_t size) {
    if (text_.gap() >= size) return true;
    const std::size_t more = block_size_ + size;
    char* const block = request_block(block_size_ + more + 1);
    if (!block) return false;
    std::memcpy(block, text_.bytes, text_.done);
    std::memcpy(block + text_.rest + more, text_.bytes + text_.rest, text_.end - text_.rest);
    release_block(text_.bytes);
    text_.bytes = block;
    text_.rest += more;
    text_.end += more;
    block_size_ += more;
    return true;
  }

  GapText text_;
  std::size_t block_size_;
};

// The changes that a pair may take before it counts as one without an end. Where a pair forms
// occurrences on one side of the replacement only, each change uses up a byte of the original text,
// so that there are at most as many. All others may work through 64 MiB, which bounds time and
// heap.
std::size_t most_changes(std::size_t size, View pattern, View replacement) {
  constexpr std::size_t most_bytes = std::size_t{1} << 26;
  return std::max(size, most_bytes / (pattern.size() + replacement.size()));
}

// Looks again from the start after each change. Returns the new size; a pair that is given up
// leaves the text as it was.
std::size_t replace_again(char* text, std::size_t size, View pattern, View replacement) {
  if (replacement.size() < pattern.size()) {
    return change_all({text, 0, 0, size}, pattern, replacement, AfterChange::look_again);
  }
  if (find_needle({text, size}, pattern) == View::npos) return size;
  if (find_needle(replacement, pattern) != View::npos) return size;
  if (!can_form(pattern, replacement)) return replace_apart(text, size, pattern, replacement);
  HeapRewriting rewriting({text, size});
  if (!rewriting.run(pattern, replacement, most_changes(size, pattern, replacement))) return size;
  put(text, rewriting.result());
  return rewriting.result().size();
}

// A text without an occurrence is not written to, not even its terminator.
void replace_in_bytes(char* text, View pattern, View replacement) {
  if (pattern.empty()) return;
  const std::size_t size = std::strlen(text);
  const std::size_t new_size = replace_again(text, size, pattern, replacement);
  if (new_size != size) text[new_size] = '\0';
}

// Goes on behind the replacement.
void replace_onward(std::string& text, View pattern, View replacement) {
  if (replacement.size() <= pattern.size()) {
    text.resize(
        change_all({text.data(), 0, 0, text.size()}, pattern, replacement, AfterChange::go_on));
    return;
  }
  View rest = text;
  const std::size_t count = count_needles(rest, pattern);
  if (count == 0) return;
  std::string result;
  result.reserve(text.size() + count * (replacement.size() - pattern.size()));
  for (std::size_t at; (at = find_next(rest, pattern)) != View::npos;) {
    result.append(rest.substr(0, at)).append(replacement);
    rest.remove_prefix(at + pattern.size());
  }
  result.append(rest);
  text.swap(result);
}

}  // namespace
}  // namespace zeph

namespace Orbane {

const char* Zeph_Replace(char* text, char find, char replacement) {
  zeph::replace_bytes(text, std::strlen(text), find, replacement);
  return text;
}

void Zeph_Replace(std::string& text, char find, char replacement) {
  zeph::replace_bytes(text.data(), text.size(), find, replacement);
}

void Zeph_Replace(std::string& text, const std::string& pattern, const std::string& replacement) {
  if (!pattern.empty()) zeph::replace_onward(text, pattern, replacement);
}

void Zeph_Replace(char* text, const char* pattern, const char* replacement) {
  zeph::replace_in_bytes(text, pattern, replacement);
}

void Zeph_Remove(std::string& text, const std::string& pattern) {
  if (pattern.empty()) return;
  text.resize(zeph::replace_again(text.data(), text.size(), pattern, {}));
}

void Zeph_Remove(char* text, const char* pattern) {
  zeph::replace_in_bytes(text, pattern, {});
}

void Zeph_Remove(std::string& text, char byte) {
  if (byte != '\0') text.resize(zeph::remove_byte(text.data(), text.size(), byte));
}

}  // namespace Orbane
