// Heap buffers: the core behind the owned buffers of callers and the work buffers of the library.
#ifndef ZEPH_FRAME_OWNED_BUFFERS_H
#define ZEPH_FRAME_OWNED_BUFFERS_H

#include <array>
#include <cstddef>
#include <cstdlib>

namespace zeph {

// Asks the heap for `size` zero bytes, with errno left alone. Returns NULL if it refuses.
char* request_block(std::size_t size);

// Frees the block and sets the pointer to NULL.
void release_block(char*& block);

// The report of a refused work buffer.
void report_refused_work_buffer();

// Asks for work buffers of one size, in order. Each refusal is reported and leaves a NULL.
void request_work_buffers(char** blocks, std::size_t count, std::size_t size);

// The core of Zeph_Prepare_Mem: a block that is there and has the capacity stays, another one takes
// its place otherwise. Reports a refusal of the heap, or a block that it does not know.
bool prepare_block(char*& block, std::size_t size);

// `count` work buffers of one size that live inside one call. They are requested and freed in
// order; each refused request is reported and the others are made all the same.
template <std::size_t count>
class WorkBuffers {
 public:
  explicit WorkBuffers(std::size_t size) {
    request_work_buffers(blocks_.data(), count, size);
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
    return blocks_.data()[index];
  }

 private:
  std::array<char*, count> blocks_;
};

}  // namespace zeph

#endif  // ZEPH_FRAME_OWNED_BUFFERS_H
