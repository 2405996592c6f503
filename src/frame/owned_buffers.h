// Heap buffers: the core behind the owned buffers of callers and the work buffers of the library.
#ifndef ZEPH_FRAME_OWNED_BUFFERS_H
#define ZEPH_FRAME_OWNED_BUFFERS_H

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

namespace zeph {

// Asks the heap for `size` zero bytes; NULL if it refuses. errno is left alone; it is all of the
// error state that a heap touches, on any system.
//
// The empty statement counts as a use of the block: a request whose block is only freed again,
// which the interface promises all the same, is one that a compiler may leave out otherwise.
inline char* request_block(std::size_t size) {
  const int before = errno;
  char* const block = static_cast<char*>(std::calloc(size, 1));
  __asm__ volatile("" : : "r"(block) : "memory");
  errno = before;
  return block;
}

// Frees the block and sets the pointer to NULL.
void release_block(char*& block);

// The report of a refused work buffer.
[[gnu::cold]] void report_refused_work_buffer();

// The core of Zeph_Prepare_Mem: a block that is there and has the capacity stays, another one takes
// its place otherwise. Reports a refusal of the heap, or a block that it does not know.
bool prepare_block(char*& block, std::size_t size);

// Makes `count` requests that an interface has promised, for a function that needs no room: each
// block is given back at once, so that no more than one is held. Returns whether none was refused.
inline bool heap_grants(std::size_t count, std::size_t size) {
  bool granted = true;
  for (; count > 0; --count) {
    char* const block = request_block(size);
    if (!block) report_refused_work_buffer();
    granted = granted && block != nullptr;
    std::free(block);
  }
  return granted;
}

// `count` work buffers of one size that live inside one call. They are requested and freed in
// order; each refused request is reported and the others are made all the same.
template <std::size_t count>
class WorkBuffers {
 public:
  explicit WorkBuffers(std::size_t size) {
    for (char*& block : blocks_) {
      block = request_block(size);
      if (!block) report_refused_work_buffer();
    }
  }
  ~WorkBuffers() {
    for (char* const block : blocks_) std::free(block);
  }
  WorkBuffers(const WorkBuffers&) = delete;
  WorkBuffers& operator=(const WorkBuffers&) = delete;

  bool complete() const {
    for (const char* block : blocks_) {
      if (!block) return false;
    }
    return true;
  }
  char* operator[](std::size_t index) const {
    return data()[index];
  }
  char* const* data() const {
    return blocks_.data();
  }

 private:
  std::array<char*, count> blocks_;
};

}  // namespace zeph

#endif  // ZEPH_FRAME_OWNED_BUFFERS_H
