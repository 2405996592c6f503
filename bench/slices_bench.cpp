// Slices, what stands around a marker and names behind a path, against the members
// of std::string and the C library.
#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Marked {
  std::string text, out;
  Places places;
  const char* from;  // the text as a byte text
  char* bytes;       // a room of its size
  int size;
};

// ---- the peers ----

[[gnu::noinline]] bool slice(const char* text, std::size_t from, std::size_t count, char* out) {
  if (std::strlen(text) <= from) return false;
  std::memcpy(out, text + from, count);
  out[count] = '\0';
  return true;
}

[[gnu::noinline]] int slice_unasked(const char* text, std::size_t from, std::size_t count,
                                    char* out) {
  std::memcpy(out, text + from, count);
  out[count] = '\0';
  return 0;
}

[[gnu::noinline]] bool slice_string(const std::string& text, std::size_t from, std::size_t count,
                                    std::string& out) {
  if (text.size() <= from) return false;
  out.assign(text, from, count);
  return true;
}

[[gnu::noinline]] int name_of(char* out, const char* path, std::size_t room) {
  const char* const slash = std::strrchr(path, '/');
  const char* const other = std::strrchr(path, '\\');
  const char* const name = std::max({path, slash ? slash + 1 : path, other ? other + 1 : path});
  const std::size_t size = std::min(std::strlen(name), room);
  std::memcpy(out, name, size);
  out[size] = '\0';
  return 0;
}

[[gnu::noinline]] int name_of_view(char* out, std::string_view path, std::size_t room) {
  const std::size_t at = path.find_last_of("/\\");
  const std::size_t size = path.substr(at == path.npos ? 0 : at + 1).copy(out, room);
  out[size] = '\0';
  return 0;
}

template <typename Marker>
[[gnu::noinline]] int right_of(const std::string& text, const Marker& marker, std::size_t size,
                               std::string& out) {
  const std::size_t at = text.rfind(marker);
  out.assign(text, at == std::string::npos ? 0 : at + size, std::string::npos);
  return 0;
}

template <typename Marker>
[[gnu::noinline]] std::string right_copy(const std::string& text, const Marker& marker,
                                         std::size_t size) {
  const std::size_t at = text.rfind(marker);
  return text.substr(at == std::string::npos ? 0 : at + size);
}

template <typename Marker>
[[gnu::noinline]] int left_of(const std::string& text, const Marker& marker, std::string& out) {
  return out.assign(text, 0, text.find(marker)), 0;
}

template <typename Marker>
[[gnu::noinline]] std::string left_copy(const std::string& text, const Marker& marker) {
  return text.substr(0, text.find(marker));
}

[[gnu::noinline]] bool between(const std::string& text, char open, char close, std::string& out) {
  const std::size_t from = text.find(open), to = text.find(close);
  if (from == std::string::npos || to == std::string::npos || from >= to) return false;
  out.assign(text, from + 1, to - from - 1);
  return true;
}

// ---- the rows ----

void add_name_row(Marked& m, const std::string& input) {
  const auto room = static_cast<std::size_t>(m.size);
  row("slices", "Zeph_Ext_Name_From_FullPath", input, m.text.size())
      .outputs([&m] { return take(m.bytes); })
      .zeph([&m] { return Orbane::Zeph_Ext_Name_From_FullPath(m.bytes, m.from, m.size), 0; })
      .peer("two of strrchr, memcpy", [&m, room] { return name_of(m.bytes, m.from, room); })
      .peer("find_last_of, copy", [&m, room] { return name_of_view(m.bytes, m.from, room); });
}

void add_byte_rows(Marked& m, const std::string& input) {
  const int third = m.size / 3;
  const auto count = static_cast<std::size_t>(third);
  const auto read = [&m] { return take(m.bytes); };
  row("slices", "Zeph_Get_SubString", input, m.text.size())
      .outputs(read)
      .zeph([&m, third] { return Orbane::Zeph_Get_SubString(m.from, third, third, m.bytes); })
      .peer("strlen, memcpy", [&m, count] { return slice(m.from, count, count, m.bytes); });
  row("slices", "Zeph_Ext_Str_From_Str", input, m.text.size())
      .reason("memcpy does it for either; Zeph calls it from the shared object")
      .outputs(read)
      .zeph([&m, third] { return Orbane::Zeph_Ext_Str_From_Str(m.from, third, third, m.bytes), 0; })
      .peer("memcpy", [&m, count] { return slice_unasked(m.from, count, count, m.bytes); });
}

void add_string_slice_rows(Marked& m, const std::string& input) {
  const int third = m.size / 3;
  const auto count = static_cast<std::size_t>(third);
  const auto read = [&m] { return std::exchange(m.out, "#"); };
  row("slices", "Zeph_Get_SubString String", input, m.text.size())
      .outputs(read)
      .zeph([&m, third] { return Orbane::Zeph_Get_SubString(m.text, third, third, m.out); })
      .peer("assign", [&m, count] { return slice_string(m.text, count, count, m.out); });
  row("slices", "Zeph_Ext_Str_From_Str String", input, m.text.size())
      .outputs(read)
      .zeph([&m, third] { return Orbane::Zeph_Ext_Str_From_Str(m.text, third, third, m.out), 0; })
      .peer("assign", [&m, count] { return m.out.assign(m.text, count, count), 0; });
}

// Slices that begin where the text ends. The byte text form of Zeph_Ext_Str_From_Str does not ask
// for that end, and has no such row. Where nothing is written, the answer is what is returned.
void add_empty_slice_rows(Marked& m, const std::string& input) {
  const int third = m.size / 3;
  const auto count = static_cast<std::size_t>(third), end = m.text.size();
  row("slices", "Zeph_Get_SubString", input, m.text.size())
      .reason("strlen decides for either; Zeph calls it from the shared object")
      .zeph([&m, third] { return Orbane::Zeph_Get_SubString(m.from, m.size, third, m.bytes); })
      .peer("strlen, memcpy", [&m, count, end] { return slice(m.from, end, count, m.bytes); });
  row("slices", "Zeph_Get_SubString String", input, m.text.size())
      .zeph([&m, third] { return Orbane::Zeph_Get_SubString(m.text, m.size, third, m.out); })
      .peer("assign", [&m, count, end] { return slice_string(m.text, end, count, m.out); });
  row("slices", "Zeph_Ext_Str_From_Str String", input, m.text.size())
      .outputs([&m] { return std::exchange(m.out, "#"); })
      .zeph([&m, third] { return Orbane::Zeph_Ext_Str_From_Str(m.text, m.size, third, m.out), 0; })
      .peer("assign", [&m, count, end] { return m.out.assign(m.text, end, count), 0; });
}

void add_between_row(Marked& m, const std::string& input, bool marked) {
  auto& added = row("slices", "Zeph_Get_SubString, between", input, m.text.size());
  if (marked) added.outputs([&m] { return std::exchange(m.out, "#"); });
  added.zeph([&m] { return Orbane::Zeph_Get_SubString(m.text, '[', ']', m.out); })
      .peer("find, assign", [&m] { return between(m.text, '[', ']', m.out); });
}

// The four functions around one marker.
template <typename Marker>
void add_marker_rows(Marked& m, const Marker& marker, std::size_t size, const std::string& kind,
                     const std::string& input) {
  const auto read = [&m] { return std::exchange(m.out, "#"); };
  row("slices", "Zeph_Right, " + kind, input, m.text.size())
      .outputs(read)
      .zeph([&m, marker] { return Orbane::Zeph_Right(m.text, marker, m.out), 0; })
      .peer("rfind, assign", [&m, marker, size] { return right_of(m.text, marker, size, m.out); });
  row("slices", "Zeph_Left, " + kind, input, m.text.size())
      .outputs(read)
      .zeph([&m, marker] { return Orbane::Zeph_Left(m.text, marker, m.out), 0; })
      .peer("find, assign", [&m, marker] { return left_of(m.text, marker, m.out); });
  row("slices", "Zeph_Right, returned, " + kind, input, m.text.size())
      .zeph([&m, marker] { return Orbane::Zeph_Right(m.text, marker); })
      .peer("rfind, substr", [&m, marker, size] { return right_copy(m.text, marker, size); });
  row("slices", "Zeph_Left, returned, " + kind, input, m.text.size())
      .zeph([&m, marker] { return Orbane::Zeph_Left(m.text, marker); })
      .peer("find, substr", [&m, marker] { return left_copy(m.text, marker); });
}

Marked& make_marked(const std::string& text) {
  Marked& m = keep(Marked{text, "", {}, nullptr, nullptr, static_cast<int>(text.size())});
  m.from = m.places.text(text);
  m.bytes = m.places.room(text.size() + 1);
  return m;
}

// All that looks for something in the text.
void add_seeking_rows(Marked& m, const std::string& input, bool marked) {
  add_name_row(m, input);
  add_between_row(m, input, marked);
  add_marker_rows(m, '/', 1, "a byte", input);
  add_marker_rows(m, std::string("=>"), 2, "a text", input);
}

void add_rows_of_size(std::size_t size) {
  // With the marks near the front, what looks from the end has a way to go; with those at the end,
  // what looks from the front.
  const std::string front = "a[b]=>c/", back = "/a[b]=>c", name = size_text(size);
  Marked& m = make_marked(front + std::string(size - front.size(), 'x'));
  add_byte_rows(m, name);
  add_string_slice_rows(m, name);
  add_seeking_rows(m, name, true);
  Marked& late = make_marked(std::string(size - back.size(), 'x') + back);
  add_seeking_rows(late, name + ", at the end", true);
  Marked& none = make_marked(std::string(size, 'x'));
  add_empty_slice_rows(none, name + ", none");
  add_seeking_rows(none, name + ", none", false);
}

}  // namespace

void register_slices_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) add_rows_of_size(size);
  add_name_row(make_marked("/var/log/chamber2/2025/07/29/alarm.log"), "a path, 38 bytes");
  add_name_row(make_marked("alarm.log"), "no folder, 9 bytes");
}

}  // namespace zeph_bench
