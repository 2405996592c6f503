// A text being rewritten inside one buffer.
#ifndef ZEPH_REWRITE_GAP_TEXT_H
#define ZEPH_REWRITE_GAP_TEXT_H

#include <algorithm>
#include <cstring>
#include <string_view>

#include "frame/owned_buffers.h"
#include "scan/find_needle.h"
#include "scan/move_bytes.h"

namespace zeph {

inline void put(char* to, std::string_view bytes) {
  if (!bytes.empty()) move_bytes(to, bytes.data(), bytes.size());
}

// The next occurrence. Where they stand close together, a look at the first bytes is cheaper than
// the start of a wide search.
inline std::size_t find_near(std::string_view text, std::string_view pattern) {
  constexpr std::size_t near = 16;
  const std::size_t first = near < text.size() ? near : text.size();
  for (std::size_t at = 0; at < first; ++at) {
    if (text[at] == pattern[0] && text.compare(at, pattern.size(), pattern) == 0) return at;
  }
  const std::size_t at = find_needle(text.substr(first), pattern);
  return at == std::string_view::npos ? at : at + first;
}

// What is done, a gap, and what is still to be searched.
//
//     bytes  [ 0 .. done )  gap  [ rest .. end )
struct GapText {
  char* bytes;
  std::size_t done, rest, end;

  std::size_t gap() const {
    return rest - done;
  }
  std::string_view unsearched() const {
    return {bytes + rest, end - rest};
  }
  // The next `n` bytes are done.
  void pass(std::size_t n) {
    if (done != rest) move_bytes(bytes + done, bytes + rest, n);
    done += n;
    rest += n;
  }
  // The last `n` bytes that are done stand in front of the rest again.
  void take_back(std::size_t n) {
    done -= n;
    rest -= n;
    move_bytes(bytes + rest, bytes + done, n);
  }
  // Changes the occurrence of `pattern` at index `at` of the rest. The gap has the room. What may
  // be part of a new occurrence stands in front of the rest again.
  void change(std::size_t at, std::string_view pattern, std::string_view replacement) {
    pass(at);
    rest += pattern.size();
    rest -= replacement.size();
    put(bytes + rest, replacement);
    take_back(std::min(pattern.size() - 1, done));
  }
};

// A rewriting on the heap that may be given up: pairs such as "ab" and "bbaa" never end, and others
// end after more steps than anybody waits for.
class HeapRewriting {
 public:
  explicit HeapRewriting(std::string_view text)
      : text_{nullptr, 0, 0, text.size()}, block_size_(text.size()) {
    text_.bytes = request_block(block_size_ + 1);
    if (text_.bytes) put(text_.bytes, text);
  }
  ~HeapRewriting() {
    release_block(text_.bytes);
  }
  HeapRewriting(const HeapRewriting&) = delete;
  HeapRewriting& operator=(const HeapRewriting&) = delete;

  // False if it was given up.
  bool run(std::string_view pattern, std::string_view replacement, std::size_t most_changes) {
    if (!text_.bytes) return false;
    for (std::size_t changes = 0;; ++changes) {
      const std::size_t at = find_near(text_.unsearched(), pattern);
      if (at == std::string_view::npos) break;
      if (changes == most_changes || !make_gap(replacement.size())) return false;
      text_.change(at, pattern, replacement);
    }
    text_.pass(text_.end - text_.rest);
    return true;
  }
  std::string_view result() const {
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

}  // namespace zeph

#endif  // ZEPH_REWRITE_GAP_TEXT_H
