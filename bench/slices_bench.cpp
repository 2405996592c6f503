// Slices, what stands around a marker, names behind a path and marks taken off, against the members
// of std::string and the C library.
#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

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

[[gnu::noinline]] int left_of(const std::string& text, const std::string& marker,
                              std::string& out) {
  return out.assign(text, 0, text.find(marker)), 0;
}

[[gnu::noinline]] bool between(const std::string& text, char open, char close, std::string& out) {
  const std::size_t from = text.find(open), to = text.find(close);
  if (from == std::string::npos || to == std::string::npos || from >= to) return false;
  out.assign(text, from + 1, to - from - 1);
  return true;
}

// ---- the rows ----

void add_byte_rows(Marked& m, const std::string& input) {
  const int third = static_cast<int>(m.text.size() / 3);
  row("slices", "Zeph_Get_SubString", input, m.text.size())
      .outputs([&m] { return std::string(m.bytes); })
      .zeph([&m, third] { return Orbane::Zeph_Get_SubString(m.from, third, third, m.bytes); })
      .peer("strlen, memcpy", [&m, third] {
        const auto size = static_cast<std::size_t>(third);
        return slice(m.from, size, size, m.bytes);
      });
  row("slices", "Zeph_Ext_Name_From_FullPath", input, m.text.size())
      .outputs([&m] { return std::string(m.bytes); })
      .zeph([&m] { return Orbane::Zeph_Ext_Name_From_FullPath(m.bytes, m.from, m.size), 0; })
      .peer("two of strrchr, memcpy",
            [&m] { return name_of(m.bytes, m.from, static_cast<std::size_t>(m.size)); })
      .peer("find_last_of, copy",
            [&m] { return name_of_view(m.bytes, m.from, static_cast<std::size_t>(m.size)); });
}

void add_string_rows(Marked& m, const std::string& input) {
  const auto read = [&m] { return m.out; };
  row("slices", "Zeph_Right, a byte", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Right(m.text, '/', m.out), 0; })
      .peer("rfind, assign", [&m] { return right_of(m.text, '/', 1, m.out); });
  static const std::string marker = "=>";
  row("slices", "Zeph_Right, a text", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Right(m.text, marker, m.out), 0; })
      .peer("rfind, assign", [&m] { return right_of(m.text, marker, 2, m.out); });
  row("slices", "Zeph_Left, a text", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Left(m.text, marker, m.out), 0; })
      .peer("find, assign", [&m] { return left_of(m.text, marker, m.out); });
  row("slices", "Zeph_Get_SubString, between", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Get_SubString(m.text, '[', ']', m.out); })
      .peer("find, assign", [&m] { return between(m.text, '[', ']', m.out); });
}

}  // namespace

void register_slices_rows() {
  for (const std::size_t size : {32U, 64U, 4096U, 65536U, 1048576U}) {
    // The marks stand near the front, so that what looks from the end has a way to go.
    std::string text = "a[b]=>c/";
    text.resize(size, 'x');
    Marked& m = keep(Marked{text, "", {}, nullptr, nullptr, static_cast<int>(size)});
    m.from = m.places.text(text);
    m.bytes = m.places.room(size + 1);
    add_byte_rows(m, size_text(size));
    add_string_rows(m, size_text(size));
  }
}

}  // namespace zeph_bench
