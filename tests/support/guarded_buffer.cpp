#include "support/guarded_buffer.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <vector>

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
#endif

// So many bytes on each side of a room are watched, if they are there.
constexpr std::ptrdiff_t watched = 64;

// Open pages between inaccessible ones are kept for the next room of their size: mapping them anew
// would take most of a test's time. Each thread keeps its own, so that rooms order nothing between
// threads.
thread_local std::map<std::size_t, std::vector<char*>> pool;

char* take_pages(std::size_t open) {
  std::vector<char*>& ready = pool[open];
  if (!ready.empty()) {
    char* const start = ready.back();
    ready.pop_back();
    return start;
  }
  const std::size_t page = page_size();
  void* const pages = map_inaccessible(open + 2 * page);
  if (!pages || !open_pages(static_cast<char*>(pages) + page, open)) throw std::bad_alloc();
  return static_cast<char*>(pages) + page;
}

bool holds_pattern(const char* from, const char* to) {
  return std::all_of(from, to, [](char byte) { return byte == GuardedBuffer::pattern; });
}

thread_local Placement placement_now;

}  // namespace

ScopedPlacement::ScopedPlacement(Placement placement) : before_(placement_now) {
  placement_now = placement;
}

ScopedPlacement::~ScopedPlacement() {
  placement_now = before_;
}

Placement ScopedPlacement::current() {
  return placement_now;
}

GuardedBuffer::GuardedBuffer(std::size_t size, Placement placement) : size_(size) {
  static const std::size_t page = page_size();
  const std::size_t open = (size + placement.gap + page) / page * page;
  start_ = take_pages(open);
  end_ = start_ + open;
  data_ = placement.edge == Edge::back ? end_ - placement.gap - size : start_ + placement.gap;
  std::memset(watched_from(), pattern, static_cast<std::size_t>(watched_to() - watched_from()));
}

GuardedBuffer::~GuardedBuffer() {
  if (!holds_pattern(watched_from(), data_) || !holds_pattern(data_ + size_, watched_to())) {
    std::fputs("a byte beside the caller's room was written\n", stderr);
    std::abort();
  }
  pool[static_cast<std::size_t>(end_ - start_)].push_back(start_);
}

char* GuardedBuffer::watched_from() const {
  return data_ - std::min(data_ - start_, watched);
}

char* GuardedBuffer::watched_to() const {
  return data_ + size_ + std::min(end_ - data_ - static_cast<std::ptrdiff_t>(size_), watched);
}

bool GuardedBuffer::untouched(std::size_t from) const {
  return holds_pattern(data_ + from, data_ + size_);
}

GuardedText::GuardedText(std::string_view text, End end, Placement placement)
    : GuardedBuffer(text.size() + (end == End::terminated ? 1 : 0), placement) {
  if (!text.empty()) std::memcpy(data(), text.data(), text.size());
  if (end == End::terminated) data()[text.size()] = '\0';
}

}  // namespace zeph_test
