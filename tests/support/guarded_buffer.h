// Room between two inaccessible pages.
//
//     GuardedBuffer out(9);              // out.data()[9] faults: the room ends at the page
//     GuardedBuffer in(9, Edge::front);  // in.data()[-1] faults: the room starts at the page
//     GuardedText text("abc");           // a byte text whose terminator is the last byte
//     GuardedText bare("abc", End::bare);  // the same without a terminator
//     at_edge("abc");                      // as GuardedText for millions of texts, until the next
//     call
//
// The room is filled with a pattern, so that bytes that must stay untouched can be checked:
// `untouched(from)` is true if all bytes from index `from` on still hold it.
#ifndef ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
#define ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H

#include <cstddef>
#include <string_view>

namespace zeph_test {

enum class Edge { back, front };
enum class End { terminated, bare };

class GuardedBuffer {
 public:
  static constexpr char pattern = '\x5A';

  explicit GuardedBuffer(std::size_t size, Edge edge = Edge::back);
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
  void* pages_;
  std::size_t pages_size_;
  char* data_;
  std::size_t size_;
};

class GuardedText : public GuardedBuffer {
 public:
  explicit GuardedText(std::string_view text, End end = End::terminated, Edge edge = Edge::back);
};

const char* at_edge(std::string_view text, End end = End::terminated);

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_GUARDED_BUFFER_H
