// Blanks off the ends, in place: what stays is moved once, however many blanks there are.
#include <cstring>

#include "frame/string_pieces.h"
#include "scan/move_bytes.h"
#include "scan/other_byte.h"
#include "scan/word.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char blank = ' ';
constexpr std::uint64_t blanks = 0x2020202020202020;

// Up to here a run is counted by the word, without a call.
constexpr std::size_t near_words = 4 * word_size;

// The first word goes byte by byte, so that a short run decides where to load from without a wait.
std::size_t blanks_at_front(const std::string& text) {
  const char* const begin = text.data();
  const std::size_t size = text.size();
  for (std::size_t run = 0; run < word_size; ++run) {
    if (run == size || begin[run] != blank) return run;
  }
  for (std::size_t run = word_size; run < near_words && size - run >= word_size; run += word_size) {
    const std::uint64_t others = load_word(begin + run) ^ blanks;
    if (others != 0) return run + static_cast<std::size_t>(__builtin_ctzll(others)) / 8;
  }
  return run_at_front(begin, size, blank);
}

// What is left of a text.
struct Kept {
  std::size_t begin, end;
};

// A text of blanks has lost all of them at its head.
Kept without_both(const char* text, std::size_t size, std::size_t begin) {
  return {begin, size - run_at_back(text + begin, size - begin, blank)};
}

// For at least one byte in front of a zero. A few cost less than the call that clears them.
void clear_bytes(char* bytes, std::size_t size) {
  if (size > 16) {
    std::memset(bytes, '\0', size);
  } else if (size >= 8) {
    std::memset(bytes, '\0', 8);
    std::memset(bytes + size - 8, '\0', 8);
  } else if (size >= 4) {
    std::memset(bytes, '\0', 4);
    std::memset(bytes + size - 4, '\0', 4);
  } else {
    // The byte behind them is a terminator already.
    std::memset(bytes, '\0', 2);
    std::memset(bytes + size - 1, '\0', 2);
  }
}

// A text and its blanks at the front.
struct HeadedText {
  std::size_t size, begin;
};

// A few blanks are passed before the end is looked for, from behind them on.
HeadedText headed(const char* text) {
  std::size_t begin = 0;
  while (begin < near_run && text[begin] == blank) ++begin;
  const std::size_t size = begin + std::strlen(text + begin);
  if (begin == near_run) begin = long_run_at_front(text, size, blank);
  return {size, begin};
}

// Moves the bytes that stay to the front. From their end up to the old terminator all bytes become
// zero: trailing blanks as promised, and behind a head because each blank taken out alone would
// have drawn a further zero byte behind the text.
void keep_in_text(char* text, std::size_t size, Kept kept) {
  const std::size_t left = kept.end - kept.begin;
  if (left == size) return;
  if (kept.begin > 0) move_bytes(text, text + kept.begin, left);
  clear_bytes(text + left, size - left);
}

// By itself, so that a few blanks behind a text save no register.
[[gnu::noinline]] void drop_any_tail(std::string& text) {
  text.erase(text.size() - run_at_back(text.data(), text.size(), blank));
}

// Blanks are counted by the word: that takes as long for every number of them in one, and nothing
// is loaded from a place that the number decides. Most texts have none, which their last byte
// tells.
void drop_tail(std::string& text) {
  const std::size_t size = text.size();
  if (size == 0 || text[size - 1] != blank) return;
  for (std::size_t left = size; left >= word_size && size - left < near_words; left -= word_size) {
    const std::uint64_t others = load_word(text.data() + left - word_size) ^ blanks;
    if (others == 0) continue;
    text.erase(left - static_cast<std::size_t>(__builtin_clzll(others)) / 8);
    return;
  }
  drop_any_tail(text);
}

void keep_in_string(std::string& text, Kept kept) {
  if (kept.begin == 0) {
    text.erase(kept.end);
  } else {
    put_string(text, text.data() + kept.begin, kept.end - kept.begin);
  }
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_Del_TailSpace(char* text) {
  const std::size_t size = std::strlen(text);
  const std::size_t run = zeph::run_at_back(text, size, zeph::blank);
  if (run > 0) zeph::clear_bytes(text + size - run, run);
}

void Zeph_Del_TailSpace(std::string& text) {
  zeph::drop_tail(text);
}

void Zeph_Del_HeadSpace(char* text) {
  if (*text != zeph::blank) return;
  const auto [size, begin] = zeph::headed(text);
  zeph::keep_in_text(text, size, {begin, size});
}

void Zeph_Del_HeadSpace(std::string& text) {
  const std::size_t begin = zeph::blanks_at_front(text);
  zeph::keep_in_string(text, {begin, text.size()});
}

void Zeph_Trimed(char* text) {
  const auto [size, begin] = zeph::headed(text);
  zeph::keep_in_text(text, size, zeph::without_both(text, size, begin));
}

void Zeph_Trimed(std::string& text) {
  const std::size_t begin = zeph::run_at_front(text.data(), text.size(), zeph::blank);
  zeph::keep_in_string(text, zeph::without_both(text.data(), text.size(), begin));
}

}  // namespace Orbane
