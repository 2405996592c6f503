// Room between two inaccessible pages.
//
//     GuardedBuffer out(9);                // out.data()[9] faults: the room ends at the page
//     GuardedText text("abc");             // a byte text whose terminator is the last byte
//     GuardedText bare("abc", End::bare);  // the same without a terminator
//     const ScopedPlacement moved({Edge::front, 3});  // all rooms from here on start at byte 3
//
// The room is filled with a pattern, so that bytes that must stay untouched can be checked:
// `untouched(from)` is true if all bytes from index `from` on still hold it. A byte next to the
// room, on a side where no page is, that changed while the room was there ends the program.
#ifndef ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
#define ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

namespace zeph_test {

enum class Edge { back, front };
enum class End { terminated, bare };

// Where a room lies: so many bytes from the inaccessible page at that edge.
struct Placement {
  Placement(Edge at = Edge::back, std::size_t bytes = 0) : edge(at), gap(bytes) {}

  Edge edge;
  std::size_t gap;
};

// All rooms of this thread lie there for as long as this lives.
class ScopedPlacement {
 public:
  explicit ScopedPlacement(Placement placement);
  ~ScopedPlacement();
  ScopedPlacement& operator=(ScopedPlacement&&) = delete;

 private:
  Placement before_;
};

class GuardedBuffer {
 public:
  static constexpr char pattern = '\x5A';

  explicit GuardedBuffer(std::size_t size);
  ~GuardedBuffer();
  GuardedBuffer& operator=(GuardedBuffer&&) = delete;

  char* data() const {
    return data_;
  }
  std::size_t size() const {
    return size_;
  }
  std::string bytes() const {
    return {data_, size_};
  }
  bool untouched(std::size_t from = 0) const;

 private:
  char *start_, *end_;                // of the open pages
  char *watched_from_, *watched_to_;  // around the room
  char* data_;
  std::size_t size_;
};

class GuardedText : public GuardedBuffer {
 public:
  explicit GuardedText(std::string_view text, End end = End::terminated);
};

// The text that `call(room)` leaves in a room of so many bytes; all of them if there is no
// terminator. Bytes behind it must be untouched, and behind the text that the room held before.
template <typename Call>
std::string left_in_room(std::size_t size, Call call, const std::string* held = nullptr) {
  const GuardedBuffer room(size);
  if (held) std::memcpy(room.data(), held->c_str(), held->size() + 1);
  call(room.data());
  const std::string text(room.data(), strnlen(room.data(), size));
  const std::size_t used = std::max(text.size(), held ? held->size() : 0) + 1;
  EXPECT_TRUE(room.untouched(std::min(used, size))) << text;
  return text;
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
