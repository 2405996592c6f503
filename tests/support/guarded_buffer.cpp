#include "support/guarded_buffer.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace zeph_test {
namespace {

constexpr std::size_t page = 65536;  // a multiple of every system's

// So many bytes on each side of a room are watched, if they are there.
constexpr std::ptrdiff_t watched = 64;

// Open pages between inaccessible ones are kept for the next room of their size: mapping them anew
// would take most of a test's time. Each thread keeps its own, so that rooms order nothing between
// threads.
thread_local std::map<std::size_t, std::vector<char*>> pool;

char* take_pages(std::size_t open) {
  std::vector<char*>& ready = pool[open];
  if (ready.empty()) {
#ifdef _WIN32
    void* const pages = VirtualAlloc(nullptr, open + 2 * page, MEM_RESERVE, PAGE_NOACCESS);
    ready.push_back(static_cast<char*>(pages) + page);
    const bool opened = pages && VirtualAlloc(ready.back(), open, MEM_COMMIT, PAGE_READWRITE);
#else
    const int kind = MAP_PRIVATE | MAP_ANONYMOUS;
    void* const pages = mmap(nullptr, open + 2 * page, PROT_NONE, kind, -1, 0);
    ready.push_back(static_cast<char*>(pages) + page);
    const bool opened = mprotect(ready.back(), open, PROT_READ | PROT_WRITE) == 0;
#endif
    if (!opened) throw std::bad_alloc();
  }
  char* const start = ready.back();
  ready.pop_back();
  return start;
}

bool holds_pattern(const char* from, const char* to) {
  return std::all_of(from, to, [](char byte) { return byte == GuardedBuffer::pattern; });
}

thread_local Placement placement_now;

}  // namespace

ScopedPlacement::ScopedPlacement(Placement placement)
    : before_(std::exchange(placement_now, placement)) {}

ScopedPlacement::~ScopedPlacement() {
  placement_now = before_;
}

GuardedBuffer::GuardedBuffer(std::size_t size) : size_(size) {
  const auto [edge, gap] = placement_now;
  const std::size_t open = (size + gap + page) / page * page;
  start_ = take_pages(open);
  end_ = start_ + open;
  data_ = edge == Edge::back ? end_ - gap - size : start_ + gap;
  watched_from_ = data_ - std::min(data_ - start_, watched);
  watched_to_ = data_ + size + std::min(end_ - (data_ + size), watched);
  std::fill(watched_from_, watched_to_, pattern);
}

GuardedBuffer::~GuardedBuffer() {
  if (!holds_pattern(watched_from_, data_) || !holds_pattern(data_ + size_, watched_to_)) {
    std::fputs("a byte beside the caller's room was written\n", stderr);
    std::abort();
  }
  pool[static_cast<std::size_t>(end_ - start_)].push_back(start_);
}

bool GuardedBuffer::untouched(std::size_t from) const {
  return holds_pattern(data_ + from, data_ + size_);
}

GuardedText::GuardedText(std::string_view text, End end)
    : GuardedBuffer(text.size() + (end == End::terminated ? 1 : 0)) {
  std::copy(text.begin(), text.end(), data());
  if (end == End::terminated) data()[text.size()] = '\0';
}

}  // namespace zeph_test
