// Room between two inaccessible pages.
//
//     GuardedBuffer out(9);                // out.data()[9] faults: the room ends at the page
//     GuardedBuffer in(9, Edge::front);    // in.data()[-1] faults: the room starts at the page
//     GuardedText text("abc");             // a byte text whose terminator is the last byte
//     GuardedText bare("abc", End::bare);  // the same without a terminator
//     const ScopedPlacement moved({Edge::front, 3});  // all rooms from here on start at byte 3
//
// The room is filled with a pattern, so that bytes that must stay untouched can be checked:
// `untouched(from)` is true if all bytes from index `from` on still hold it. A byte next to the
// room, on a side where no page is, that changed while the room was there ends the program.
#ifndef ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
#define ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H

#include <cstddef>
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

// Rooms that name no placement of their own lie there for as long as this lives.
class ScopedPlacement {
 public:
  explicit ScopedPlacement(Placement placement);
  ~ScopedPlacement();
  ScopedPlacement(const ScopedPlacement&) = delete;
  ScopedPlacement& operator=(const ScopedPlacement&) = delete;
  static Placement current();

 private:
  Placement before_;
};

class GuardedBuffer {
 public:
  static constexpr char pattern = '\x5A';

  explicit GuardedBuffer(std::size_t size, Placement placement = ScopedPlacement::current());
  ~GuardedBuffer();
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;

  char* data() const {
    return data_;
  }
  std::size_t size() const {
    return size_;
  }
  bool untouched(std::size_t from = 0) const;

 private:
  char* watched_from() const;
  char* watched_to() const;

  char* start_;  // of the open pages
  char* end_;
  char* data_;
  std::size_t size_;
};

class GuardedText : public GuardedBuffer {
 public:
  explicit GuardedText(std::string_view text, End end = End::terminated,
                       Placement placement = ScopedPlacement::current());
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
