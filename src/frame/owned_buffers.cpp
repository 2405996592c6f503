#include "frame/owned_buffers.h"

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "frame/diagnostics.h"
#include "frame/fixed_buffers.h"
#include "platform/platform.h"
#include "scan/move_bytes.h"
#include "zeph.h"

namespace zeph {

void release_block(char*& block) {
  std::free(block);
  block = nullptr;
}

void report_refused_work_buffer() {
  Diag_Banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem");
}

namespace {

// Most blocks are there and large enough. All else stays out of their way.
[[gnu::noinline]] bool replace_block(char*& block, std::size_t size) {
  release_block(block);
  block = request_block(size);
  if (!block) report_refused_work_buffer();
  return block != nullptr;
}

}  // namespace

bool prepare_block(char*& block, std::size_t size) {
  if (__builtin_expect(!block, 0)) return replace_block(block, size);
  const std::size_t capacity = block_capacity(block);
  if (__builtin_expect(capacity == unknown_block, 0)) {
    Diag_Banner("[Zeph] Invalid pointer in Zeph_Prepare_Mem");
    return false;
  }
  return __builtin_expect(size <= capacity, 1) || replace_block(block, size);
}

namespace {

void report_refused_copy(const char* source) {
  if (source) {
    Diag_Banner("[Zeph] Memory calloc Fail in STR_MEM_MAKE_COPY <= [%s]", source);
  } else {
    Diag_Banner("[Zeph] Memory calloc Fail in STR_MEM_MAKE_COPY <= NULL");
  }
}

// Copies in rising order, byte by byte: where the target lies inside the source, the bytes that
// were just written are the ones read next.
void copy_rising(char* target, const char* source, std::size_t n) {
  const auto distance =
      reinterpret_cast<std::uintptr_t>(target) - reinterpret_cast<std::uintptr_t>(source);
  if (distance >= n) {  // in front of the source (the distance wraps) or behind its last byte
    std::memmove(target, source, n);
    return;
  }
  for (std::size_t i = 0; i < n; ++i) target[i] = source[i];
}

}  // namespace
}  // namespace zeph

namespace Orbane {

char* Zeph_Get_Mem_Str(char* text) {
  return text ? text : const_cast<char*>(zeph::empty_text);
}

int Zeph_Get_Mem_Size(char* text) {
  const std::size_t length = text ? std::strlen(text) : 0;
  return length < INT_MAX ? static_cast<int>(length) : INT_MAX;
}

bool Zeph_Copy_Mem(char** target, const char* source) {
  const std::size_t n = source ? std::strlen(source) : 0;
  if (*target && n > std::strlen(*target)) zeph::release_block(*target);
  if (!*target) *target = zeph::request_block(n + 1);
  if (!*target) {
    zeph::report_refused_copy(source);
    return false;
  }
  if (n > 0) zeph::move_bytes(*target, source, n);
  (*target)[n] = '\0';
  return true;
}

bool Zeph_Copy_Mem(char* target, int start, const char* source, int count) {
  if (!target || !source) {
    zeph::Diag_Banner("[Zeph] Invalid pointer in Zeph_Copy_Mem");
    return false;
  }
  const std::size_t length = std::strlen(target);
  if (start < 0 || static_cast<std::size_t>(start) >= length) {
    zeph::Diag_Banner("[Zeph] StartIndex out of bounds in Zeph_Copy_Mem");
    return false;
  }
  const auto from = static_cast<std::size_t>(start);
  const std::size_t n =
      count < 0 ? std::strlen(source) : strnlen(source, static_cast<std::size_t>(count));
  if (n > length - from) {
    zeph::Diag_Banner("[Zeph] Copy operation would exceed SourceString bounds in Zeph_Copy_Mem");
    return false;
  }
  zeph::copy_rising(target + from, source, n);
  return true;
}

bool Zeph_Prepare_Mem(char** buffer, int size) {
  // As an unsigned size, a negative one is beyond what any heap grants. The heap is not even asked:
  // checking heaps take such a request for a fault and stop the process.
  if (__builtin_expect(size < 0 && !*buffer, 0)) {
    zeph::report_refused_work_buffer();
    return false;
  }
  return zeph::prepare_block(*buffer, size < 0 ? 0 : static_cast<std::size_t>(size));
}

void Zeph_Release_Mem(char** buffer) {
  zeph::release_block(*buffer);
}

char* Zeph_Set_Mem(char* block, int value, unsigned int count) {
  if (count == 0) return block;
  if (__builtin_expect(count > zeph::most_filled_bytes, 0))
    return static_cast<char*>(std::memset(block, value, count));
  zeph::fill_short(block, value, count);
  return block;
}

}  // namespace Orbane
