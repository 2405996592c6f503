// One occurrence of a pattern after another.
#ifndef ZEPH_REWRITE_OCCURRENCES_H
#define ZEPH_REWRITE_OCCURRENCES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "scan/byte_mask.h"
#include "scan/find_needle.h"
#include "scan/same_bytes.h"

namespace zeph {

// A walk over the occurrences of a pattern from the left to the right. All places among the next 64
// where the ends of a short pattern meet are found at once and taken one by one, so that an
// occurrence costs no start of a search. A far one, or a long pattern, is find_needle()'s.
//
// What is in front of the place last asked for may change; if anything else does, forget() tells.
class Occurrences {
 public:
  static constexpr std::size_t none = std::string_view::npos;

  // The pattern is not empty.
  Occurrences(std::string_view text, std::string_view pattern)
      : text_(text),
        pattern_(pattern),
        count_(pattern.size() > text.size() ? 0 : text.size() - pattern.size() + 1) {}

  // The first occurrence at `from` or behind it. `from` lies behind the last answer, or the answer
  // is the same again. Mostly it is one that is known.
  std::size_t next(std::size_t from) {
    if (from < end_) {
      if (from > window_) places_ &= ~std::uint64_t{0} << (from - window_);
      if (places_ != 0 && pattern_.size() <= 2) return window_ + lowest_place(places_);
    }
    return search(from);
  }

  // Whether there is any. Where its first byte does not stand at all, that decides.
  bool any() {
    if (count_ <= mask_bytes / 4) {
      std::size_t near = 0;
      while (near < count_ && text_[near] != pattern_[0]) ++near;
      return near < count_ && any_from(near);
    }
    const void* const first = std::memchr(text_.data(), pattern_[0], count_);
    if (!first) return false;
    return any_from(static_cast<std::size_t>(static_cast<const char*>(first) - text_.data()));
  }
  bool any_from(std::size_t from) {
    return search(from) != none;
  }
  std::string_view pattern() const {
    return pattern_;
  }

  // The text has changed behind the place last asked for.
  void forget() {
    end_ = 0;
  }

 private:
  static constexpr std::size_t most_quiet = 4;

  [[gnu::noinline]] std::size_t search(std::size_t from) {
    if (from >= count_) return none;
    if (pattern_.size() > short_range) return search_long(from);
    if (from >= end_) look_at(from);
    for (std::size_t quiet = 0;;) {
      for (; places_ != 0; places_ &= places_ - 1) {
        const std::size_t at = window_ + lowest_place(places_);
        if (stands_at(at)) return at;
      }
      if (end_ == count_) return none;
      look_at(++quiet < most_quiet ? end_ : far(end_));
    }
  }

  std::size_t search_long(std::size_t from) {
    if (from >= end_) {
      window_ = far(from);
      end_ = window_ + 1;
    }
    return window_;
  }

  // Between the ends, which meet there.
  bool stands_at(std::size_t at) const {
    const std::size_t size = pattern_.size();
    return size <= 2 || same_short_bytes(text_.data() + at + 1, pattern_.data() + 1, size - 2);
  }

  std::size_t far(std::size_t from) const {
    const std::size_t found = find_needle(text_.substr(from), pattern_);
    return found == none ? none : from + found;
  }

  // The places from `from` on; none behind the last one.
  void look_at(std::size_t from) {
    const std::size_t begin = std::min(from, count_), size = std::min(mask_bytes, count_ - begin);
    const std::size_t last = pattern_.size() - 1;
    const char* const bytes = text_.data() + begin;
    std::uint64_t places = byte_mask(bytes, size, pattern_[0]);
    if (places != 0 && last != 0) places &= byte_mask(bytes + last, size, pattern_[last]);
    places_ = places;
    window_ = begin;
    end_ = begin + size;
  }

  std::string_view text_, pattern_;
  std::size_t count_;                 // of the places where the pattern may start
  std::size_t window_ = 0, end_ = 0;  // the places that were looked at
  std::uint64_t places_ = 0;          // those among them that are left
};

}  // namespace zeph

#endif  // ZEPH_REWRITE_OCCURRENCES_H
