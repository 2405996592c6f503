// Slices, what stands around a marker, names behind a path and marks taken off, against the members
// of std::string and the C library.
#include <cstring>
#include <string>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Marked {
  std::string text, out;
  char bytes[1 << 17];
};

void add_byte_rows(Marked& m, const std::string& input) {
  const int third = static_cast<int>(m.text.size() / 3);
  row("slices", "Zeph_Get_SubString", input, m.text.size())
      .outputs([&m] { return std::string(m.bytes); })
      .zeph(
          [&m, third] { return Orbane::Zeph_Get_SubString(m.text.c_str(), third, third, m.bytes); })
      .peer("strlen, memcpy", [&m, third] {
        const auto from = static_cast<std::size_t>(third);
        if (std::strlen(m.text.c_str()) <= from) return false;
        std::memcpy(m.bytes, m.text.c_str() + from, from);
        m.bytes[from] = '\0';
        return true;
      });
  row("slices", "Zeph_Ext_Name_From_FullPath", input, m.text.size())
      .outputs([&m] { return std::string(m.bytes); })
      .zeph(
          [&m] { return Orbane::Zeph_Ext_Name_From_FullPath(m.bytes, m.text.c_str(), 131071), 0; })
      .reason("it looks for two separators and cuts at a size; strrchr looks for one")
      .peer("strrchr, strcpy", [&m] {
        const char* const slash = std::strrchr(m.text.c_str(), '/');
        std::strcpy(m.bytes, slash ? slash + 1 : m.text.c_str());
        return 0;
      });
}

void add_string_rows(Marked& m, const std::string& input) {
  const auto read = [&m] { return m.out; };
  row("slices", "Zeph_Right, a byte", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Right(m.text, '/', m.out), 0; })
      .peer("rfind, assign", [&m] {
        const std::size_t at = m.text.rfind('/');
        m.out.assign(m.text, at == std::string::npos ? 0 : at + 1, std::string::npos);
        return 0;
      });
  static const std::string marker = "=>";
  row("slices", "Zeph_Right, a text", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Right(m.text, marker, m.out), 0; })
      .peer("rfind, assign", [&m] {
        const std::size_t at = m.text.rfind(marker);
        m.out.assign(m.text, at == std::string::npos ? 0 : at + 2, std::string::npos);
        return 0;
      });
  row("slices", "Zeph_Left, a text", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Left(m.text, marker, m.out), 0; })
      .peer("find, assign", [&m] { return m.out.assign(m.text, 0, m.text.find(marker)), 0; });
  row("slices", "Zeph_Get_SubString, between", input, m.text.size())
      .outputs(read)
      .zeph([&m] { return Orbane::Zeph_Get_SubString(m.text, '[', ']', m.out); })
      .peer("find, assign", [&m] {
        const std::size_t from = m.text.find('['), to = m.text.find(']', from);
        m.out.assign(m.text, from + 1, to - from - 1);
        return true;
      });
}

void add_mark_row(const char* text) {
  struct Line {
    std::string source;
    char bytes[64];
  };
  Line& line = keep(Line{text, ""});
  const auto fresh = [&line] {
    std::memcpy(line.bytes, line.source.c_str(), line.source.size() + 1);
    return line.bytes;
  };
  row("slices", "copy, Zeph_Remove_QuoteMark", std::to_string(line.source.size()) + " bytes", 0)
      .outputs([&line] { return std::string(line.bytes); })
      .zeph([fresh] { return Orbane::Zeph_Remove_QuoteMark(fresh()), 0; })
      .peer("tests, strlen, memmove", [fresh] {
        char* const bytes = fresh();
        std::size_t size = std::strlen(bytes);
        const auto is_mark = [](char byte) { return byte == '"' || byte == '\''; };
        if (size > 0 && is_mark(bytes[0])) std::memmove(bytes, bytes + 1, size--);
        if (size > 0 && is_mark(bytes[size - 1])) bytes[size - 1] = '\0';
        return 0;
      });
}

}  // namespace

void register_slices_rows() {
  for (const std::size_t size : {32U, 64U, 4096U, 65536U}) {
    // The marks stand near the front, so that what looks from the end has a way to go.
    std::string text = "a[b]=>c/";
    text.resize(size, 'x');
    Marked& m = keep(Marked{text, "", ""});
    add_byte_rows(m, size_text(size));
    add_string_rows(m, size_text(size));
  }
  add_mark_row("\"Chamber Pressure\"");
  add_mark_row("Chamber Pressure 0.75 mTorr");
}

}  // namespace zeph_bench
