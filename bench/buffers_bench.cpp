// Owned and fixed buffers, NULL read as the empty text, and the version, against the calls of the C
// library that they stand for.
#include <malloc.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#if ZEPH_BENCH_HAS_FMT
#include <fmt/format.h>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

constexpr std::size_t room_size = 2048, long_room_size = 1048577;

// ---- the peers ----

[[gnu::noinline]] bool copy_bounded(char* to, const char* from, std::size_t room) {
  const std::size_t size = strnlen(from, room - 1);
  std::memcpy(to, from, size);
  to[size] = '\0';
  return true;
}

template <typename... Form>
[[gnu::noinline]] bool copy_number(char* to, std::size_t room, Form... form) {
  *std::to_chars(to, to + room - 1, form...).ptr = '\0';
  return true;
}

[[gnu::noinline]] bool copy_new(char*& block, const char* text) {
  const std::size_t size = std::strlen(text);
  char* const made = static_cast<char*>(std::calloc(size + 1, 1));
  if (!made) return false;
  std::memcpy(made, text, size);
  std::free(block);
  block = made;
  return true;
}

[[gnu::noinline]] bool copy_to_held(char*& block, const char* text) {
  const std::size_t size = std::strlen(text);
  if (!block || std::strlen(block) < size) return copy_new(block, text);
  std::memcpy(block, text, size + 1);
  return true;
}

[[gnu::noinline]] bool overlay(char* text, std::size_t start, const char* more) {
  if (!text || !more) return false;
  const std::size_t held = std::strlen(text), size = std::strlen(more);
  if (start >= held || size > held - start) return false;
  std::memmove(text + start, more, size);
  return true;
}

[[gnu::noinline]] bool prepare(char*& block, std::size_t size) {
  if (block && malloc_usable_size(block) >= size) return true;
  std::free(block);
  block = static_cast<char*>(std::calloc(size, 1));
  return block != nullptr;
}

// ---- the rows ----

void add_null_rows(const char* text, const std::string& input) {
  struct Held {
    char* text;
  };
  Held& held = keep(Held{text ? keep(Places()).text(text) : nullptr});
  if (!text || input == size_text(64)) {  // it reads no text: one does
    row("buffers", "Zeph_Get_Mem_Str", input, 0)
        .zeph([&held] { return Orbane::Zeph_Get_Mem_Str(held.text); })
        .peer("a test", [&held] { return held.text ? held.text : ""; });
  }
  row("buffers", "Zeph_Get_Mem_Size", input, 0)
      .zeph([&held] { return Orbane::Zeph_Get_Mem_Size(held.text); })
      .peer("a test, strlen",
            [&held] { return held.text ? static_cast<int>(std::strlen(held.text)) : 0; })
      .reason("a call into the shared object, and one to the service that the peer calls alone");
}

void add_new_row(std::size_t size) {
  const char* const text = keep(Places()).text(std::string(size, 'c'));
  char*& block = keep(static_cast<char*>(nullptr));
  row("buffers", "Zeph_Copy_Mem, Zeph_Release_Mem", size_text(size), size)
      .reason("two calls into the shared object, and errno is kept over the request")
      .zeph([text, &block] {
        const bool copied = Orbane::Zeph_Copy_Mem(&block, text);
        Orbane::Zeph_Release_Mem(&block);
        return copied;
      })
      .peer("strlen, calloc, memcpy, free", [text, &block] {
        const bool copied = copy_new(block, text);
        std::free(block);
        block = nullptr;
        return copied;
      });
}

void add_held_row(std::size_t size) {
  const char* const text = keep(Places()).text(std::string(size, 'c'));
  char*& block = keep(static_cast<char*>(nullptr));
  Orbane::Zeph_Copy_Mem(&block, text);
  row("buffers", "Zeph_Copy_Mem, held", size_text(size), size)
      .outputs([&block] { return take(block); })
      .zeph([text, &block] { return Orbane::Zeph_Copy_Mem(&block, text); })
      .peer("two of strlen, memcpy", [text, &block] { return copy_to_held(block, text); });
}

// Half as many bytes over the middle of a text.
void add_overlay_row(std::size_t size) {
  Places& places = keep(Places());
  const char* const more = places.text(std::string(size / 2, 'm'));
  char* const text = places.text(std::string(size, 't'));
  const std::size_t start = size / 4;
  row("buffers", "Zeph_Copy_Mem over a text", size_text(size), size)
      .outputs([text, start] {
        std::string answer = text;
        text[start] = '#';
        return answer;
      })
      .zeph([text, more, start] {
        return Orbane::Zeph_Copy_Mem(text, static_cast<int>(start), more, -1);
      })
      .peer("two of strlen, memmove", [text, more, start] { return overlay(text, start, more); });
}

void add_prepare_rows(std::size_t size) {
  const auto wanted = static_cast<int>(size);
  char*& held = keep(static_cast<char*>(nullptr));
  row("buffers", "Zeph_Prepare_Mem, held", size_text(size), 0)
      .zeph([&held, wanted] { return Orbane::Zeph_Prepare_Mem(&held, wanted); })
      .reason("a call into the shared object, and one to the service that the peer calls alone")
      .peer("malloc_usable_size", [&held, size] { return prepare(held, size); });
  char*& block = keep(static_cast<char*>(nullptr));
  row("buffers", "Zeph_Prepare_Mem, ..Release_Mem", size_text(size), 0)
      .reason("two calls into the shared object, and errno is kept over the request")
      .zeph([&block, wanted] {
        const bool prepared = Orbane::Zeph_Prepare_Mem(&block, wanted);
        Orbane::Zeph_Release_Mem(&block);
        return prepared;
      })
      .peer("calloc, free", [&block, size] {
        const bool prepared = prepare(block, size);
        std::free(block);
        block = nullptr;
        return prepared;
      });
}

void add_fill_row(std::size_t size) {
  char* const room = keep(Places()).room(size + 1);
  row("buffers", "Zeph_Set_Mem", size_text(size), size)
      .zeph([room, size] { return Orbane::Zeph_Set_Mem(room, 'z', static_cast<unsigned>(size)); })
      .peer("memset", [room, size] { return static_cast<char*>(std::memset(room, 'z', size)); })
      .reason(size > 64 ? "the same service does it, behind a call into the shared object"
                        : "a call into the shared object; what it does there takes a nanosecond");
}

// A row of Zeph_Copy_Stack, as far as its peers have it in common.
template <std::size_t room_bytes, typename Value>
Row& copy_row(const char* operation, const std::string& input, std::size_t bytes, Value value,
              char* room) {
  constexpr int size = room_bytes;
  return row("buffers", operation, input, bytes)
      .outputs([room] { return take(room); })
      .zeph([room, value] { return Orbane::Zeph_Copy_Stack(room, value, size); });
}

template <std::size_t room_bytes>
void add_text_row(std::size_t size) {
  Places& places = keep(Places());
  const char* const text = places.text(std::string(size, 'c'));
  char* const room = places.room(room_bytes);
  copy_row<room_bytes>("Zeph_Copy_Stack", size_text(size), size, text, room)
      .peer("snprintf %s",
            [text, room] { return std::snprintf(room, room_bytes, "%s", text) >= 0; })
      .peer("strnlen, memcpy", [text, room] { return copy_bounded(room, text, room_bytes); });
}

void add_number_rows(int whole, double real, const std::string& input) {
  char* const room = keep(Places()).room(room_size);
  auto& integers = copy_row<room_size>("Zeph_Copy_Stack, int", input, sizeof whole, whole, room);
  integers
      .peer("snprintf %d",
            [room, whole] { return std::snprintf(room, room_size, "%d", whole) >= 0; })
      .peer("std::to_chars", [room, whole] { return copy_number(room, room_size, whole); });
  auto& reals = copy_row<room_size>("Zeph_Copy_Stack, double", input, sizeof real, real, room);
  reals
      .peer("snprintf %f", [room, real] { return std::snprintf(room, room_size, "%f", real) >= 0; })
      .peer("std::to_chars", [room, real] {
        return copy_number(room, room_size, real, std::chars_format::fixed, 6);
      });
#if ZEPH_BENCH_HAS_FMT
  integers.peer("fmt::format_to",
                [room, whole] { return *fmt::format_to(room, "{}", whole) = '\0', true; });
  reals.peer("fmt::format_to",
             [room, real] { return *fmt::format_to(room, "{:f}", real) = '\0', true; });
#else
  integers.missing_peer("fmt");
#endif
}

}  // namespace

void register_buffers_rows() {
  row("buffers", "Zeph_Version_Info", "the constant", 0)
      .zeph([] { return Orbane::Zeph_Version_Info(); })
      .peer("a constant", [] { return "0003-20250729"; });
  add_null_rows(nullptr, "NULL");
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_null_rows(std::string(size, 'n').c_str(), size_text(size));
    add_held_row(size);
    add_overlay_row(size);
    add_prepare_rows(size);
    add_fill_row(size);
  }
  for (const std::size_t size : {8U, 32U, 64U, 1024U}) add_text_row<room_size>(size);
  for (const std::size_t size : {4096U, 65536U, 1048576U}) add_text_row<long_room_size>(size);
  for (const std::size_t size : {8U, 32U, 64U, 1024U, 4096U, 65536U, 1048576U}) add_new_row(size);
  add_number_rows(7, 0.5, "7 and 0.5");
  add_number_rows(-1234567, 421.337, "-1234567 and 421.337");
}

}  // namespace zeph_bench
