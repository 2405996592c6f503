// From the bytes of the log to the fields of an event, or to the reason why a line is refused.

#include <cstring>

#include "events.h"

namespace {

struct Line {
  Field text;        // room for the longest line, and for the CR or the zero byte behind it
  std::size_t size;  // of the line in the log, also where it is more than the text holds
};

// Reads a line of any length, with LF, CR LF or the end of the file behind it; what is over-long is
// counted and dropped. Returns false when there is none.
bool read_line(std::FILE* log, Line& line) {
  line.size = 0;
  int byte = std::getc(log);
  if (byte == EOF) return false;
  for (; byte != EOF && byte != '\n'; byte = std::getc(log)) {
    if (line.size < sizeof line.text) line.text[line.size] = static_cast<char>(byte);
    ++line.size;
  }
  const std::size_t size = line.size;
  if (size > 0 && size <= sizeof line.text && line.text[size - 1] == '\r') --line.size;
  line.text[std::min(line.size, sizeof line.text - 1)] = '\0';
  return true;
}

bool is_stray(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value < 0x20 || value == 0x7F || value == 0xFF;
}

// "2025/07/28 20:00:00.417": seven numbers in their bounds, and no byte that they do not print.
bool is_stamp(const char* stamp) {
  struct Part {
    int start, count, minimum, maximum;
  };
  constexpr Part parts[] = {{0, 4, 1970, 9999}, {5, 2, 1, 12},  {8, 2, 1, 31},  {11, 2, 0, 23},
                            {14, 2, 0, 59},     {17, 2, 0, 60}, {20, 3, 0, 999}};
  constexpr std::size_t size = 23;
  if (std::strlen(stamp) != size) return false;
  int values[7];
  int* value = values;
  for (const Part& p : parts) {
    if (!Orbane::Zeph_To_Int(stamp, p.minimum, p.maximum, value++, p.start, p.count)) return false;
  }
  const std::string printed =
      Orbane::Zeph_Splicing(size + 1, "%04d/%02d/%02d %02d:%02d:%02d.%03d", values[0], values[1],
                            values[2], values[3], values[4], values[5], values[6]);
  return Orbane::Zeph_Compare(printed.c_str(), stamp);
}

void split(const char* text, int count, Fields& to) {
  if (count == 2) Orbane::Zeph_Seperate(text, to[0], to[1], line_limit);
  if (count == 3) Orbane::Zeph_Seperate(text, to[0], to[1], to[2], line_limit);
  if (count == 4) Orbane::Zeph_Seperate(text, to[0], to[1], to[2], to[3], line_limit);
}

// Takes the marks off both ends of the field. Returns false if one of them is missing.
bool take_off(Marks marks, Field& field) {
  if (marks == Marks::none) return true;
  if (marks == Marks::quotes) {
    Field quoted;
    Orbane::Zeph_Copy_Stack(quoted, field, sizeof quoted);
    return Orbane::Zeph_String_Check(quoted, line_limit, field);
  }
  const int size = Orbane::Zeph_Get_Mem_Size(field);
  if (marks == Marks::single_quotes) Orbane::Zeph_Remove_QuoteMark(field);
  if (marks == Marks::brackets) Orbane::Zeph_Remove_Bracket(field);
  return Orbane::Zeph_Get_Mem_Size(field) == size - 2;
}

Reason read_fields(const Kind& kind, const char* text, Report& report) {
  Fields fields;
  split(text, kind.fields, fields);
  Field& last = fields[kind.fields - 1];
  if (*last == '\0' || !take_off(kind.marks, last)) return cut_off;
  return kind.read(fields, report);
}

Reason judge(const Line& line, Report& report) {
  if (line.size == 0) return empty_line;
  if (line.size > line_limit) return over_long;
  if (std::memchr(line.text, '\0', line.size) != nullptr) return zero_byte;
  if (std::any_of(line.text, line.text + line.size, is_stray)) return stray_byte;
  return read_event(line.text, report);
}

// Where the damage shows: at the first byte that no line may hold or the doubled separator, or else
// at the end of a line that was cut, the start of a bad stamp, the event behind a good one.
const char* damage_in(const char* text, const char* end, Reason reason) {
  constexpr std::ptrdiff_t stamp = 24;
  const char* const stray = std::find_if(text, end, is_stray);
  if (stray != end) return stray;
  if (reason == doubled_separator) {
    const int at = Orbane::Zeph_Find_Position(text, ",,");
    return text + std::max(0, at >= 0 ? at : Orbane::Zeph_Find_Position(text, "||"));
  }
  if (reason == bad_stamp || end - text < stamp) return text;
  return reason == cut_off || reason == over_long ? end : text + stamp;
}

// The damage and what stands around it, up to eight bytes.
std::string damaged_bytes(const Line& line, Reason reason) {
  constexpr std::ptrdiff_t most = 8;
  const char* const end = line.text + std::min(line.size, sizeof line.text - 1);
  const char* const at = damage_in(line.text, end, reason);
  const char* const from = std::min(at, end - std::min(most, end - line.text));
  return std::string(from, from + std::min(most, end - from));
}

void note_damage(Reason reason, const Line& line, Report& report) {
  ++report.refused;
  Damage& damage = report.damages[reason];
  if (++damage.lines > 1) return;
  damage.first = report.lines;
  damage.bytes = damaged_bytes(line, reason);
}

}  // namespace

Reason read_event(const char* line, Report& report) {
  Field stamp, time, name, rest;
  Orbane::Zeph_Seperate(line, stamp, time, name, rest, line_limit);
  if (*rest == '\0') return cut_off;
  report.stamp = Orbane::Zeph_Cat(Orbane::Zeph_Cat(stamp, ' '), time);
  if (!is_stamp(stamp)) return bad_stamp;
  const Kind* const kind = find_kind(name);
  if (kind == nullptr) return unknown_kind;
  const Reason reason = read_fields(*kind, rest, report);
  if (reason != taken) return reason;
  ++report.events[kind->name];
  report.last_stamp = report.stamp;
  if (report.first_stamp.empty()) report.first_stamp = report.stamp;
  return taken;
}

void read_log(std::FILE* log, Report& report) {
  for (Line line; read_line(log, line);) {
    ++report.lines;
    const Reason reason = judge(line, report);
    if (reason != taken) note_damage(reason, line, report);
  }
}
