#include "support/guarded_buffer.h"

#include <algorithm>
#include <cstring>
#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace zeph_test {
namespace {

#ifdef _WIN32
std::size_t page_size() {
  SYSTEM_INFO info;
  GetSystemInfo(&info);
  return info.dwPageSize;
}
void* map_inaccessible(std::size_t size) {
  return VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
}
bool open_pages(char* start, std::size_t size) {
  DWORD before;
  return VirtualProtect(start, size, PAGE_READWRITE, &before) != 0;
}
void unmap(void* start, std::size_t) {
  VirtualFree(start, 0, MEM_RELEASE);
}
#else
std::size_t page_size() {
  return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}
void* map_inaccessible(std::size_t size) {
  void* const start = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return start == MAP_FAILED ? nullptr : start;
}
bool open_pages(char* start, std::size_t size) {
  return mprotect(start, size, PROT_READ | PROT_WRITE) == 0;
}
void unmap(void* start, std::size_t size) {
  munmap(start, size);
}
#endif

}  // namespace

GuardedBuffer::GuardedBuffer(std::size_t size, Edge edge) : size_(size) {
  const std::size_t page = page_size();
  const std::size_t open = std::max<std::size_t>(1, (size + page - 1) / page) * page;
  pages_size_ = open + 2 * page;
  pages_ = map_inaccessible(pages_size_);
  if (!pages_) throw std::bad_alloc();
  char* const start = static_cast<char*>(pages_) + page;
  if (!open_pages(start, open)) throw std::bad_alloc();
  data_ = edge == Edge::back ? start + open - size : start;
  std::memset(start, pattern, open);
}

GuardedBuffer::~GuardedBuffer() {
  unmap(pages_, pages_size_);
}

bool GuardedBuffer::untouched(std::size_t from) const {
  return std::all_of(data_ + from, data_ + size_, [](char byte) { return byte == pattern; });
}

GuardedText::GuardedText(std::string_view text, End end, Edge edge)
    : GuardedBuffer(text.size() + (end == End::terminated ? 1 : 0), edge) {
  if (!text.empty()) std::memcpy(data(), text.data(), text.size());
  if (end == End::terminated) data()[text.size()] = '\0';
}

const char* at_edge(std::string_view text, End end) {
  static const GuardedBuffer room(1 << 18);
  char* const start = room.data() + room.size() - text.size() - (end == End::terminated ? 1 : 0);
  std::memcpy(start, text.data(), text.size());
  if (end == End::terminated) start[text.size()] = '\0';
  return start;
}

}  // namespace zeph_test
