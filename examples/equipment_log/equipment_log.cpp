// A host of Zeph: reads the event log of an equipment and prints what the next shift wants to know.
// README.md, beside this file, describes the form of the log.
//
// A line takes one road: read_line(), judge(), the reader of its kind. Each of the last two gives
// the reason why the line is refused, or notes it in the Report. A new kind of event is one small
// reader and one row of `kinds`.

#include <zeph.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

// The longest line that is taken, in bytes, its end not counted. Since no field is longer than its
// line, a field of this room is never cut.
constexpr int line_limit = 511;
using Field = char[line_limit + 1];
using Fields = Field[4];

// Why a line is refused.
using Reason = const char*;
constexpr Reason taken = nullptr;
constexpr Reason bad_number = "bad number";
constexpr Reason bad_stamp = "bad stamp";
constexpr Reason cut_off = "cut off";
constexpr Reason doubled_separator = "doubled separator";
constexpr Reason empty_line = "empty line";
constexpr Reason over_long = "over-long";
constexpr Reason stray_byte = "stray byte";
constexpr Reason unknown_kind = "unknown kind";
constexpr Reason unknown_word = "unknown word";
constexpr Reason zero_byte = "zero byte";

struct Alarm {
  int set = 0;
  int cleared = 0;
  std::string text;
};

struct Damage {
  int lines = 0;
  int first = 0;  // the number of the first such line
};

struct Report {
  Report() = default;
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report() {
    Orbane::Zeph_Release_Mem(&last_note);
  }

  int lines = 0;
  int refused = 0;
  char first_stamp[24] = "";
  char last_stamp[24] = "";
  int messages_sent = 0;
  int messages_received = 0;
  char* last_note = nullptr;  // an owned buffer of Zeph
  std::map<std::string, int> events;
  std::map<std::string, Alarm> alarms;
  std::map<std::string, Damage> damages;
};

bool is_number(const char* text) {
  return *text != '\0' && text[std::strspn(text, "0123456789")] == '\0';
}

bool has_digits(const char* text, std::size_t count) {
  return is_number(text) && std::strlen(text) == count;
}

bool is_enclosed(const char* text, char open, char close) {
  const std::size_t size = std::strlen(text);
  return size >= 2 && text[0] == open && text[size - 1] == close;
}

// "2025/07/28" and "20:00:00.417". A doubled separator makes an empty field, which is no number.
bool is_stamp(const char* date, const char* time) {
  Field year, month, day, hour, minute, seconds, whole, thousandths;
  Orbane::Zeph_Seperate_Char(date, '/', year, month, day, line_limit);
  Orbane::Zeph_Seperate_Char(time, ':', hour, minute, seconds, line_limit);
  Orbane::Zeph_Seperate_Char(seconds, '.', whole, thousandths, line_limit);
  return has_digits(year, 4) && has_digits(month, 2) && has_digits(day, 2) && has_digits(hour, 2) &&
         has_digits(minute, 2) && has_digits(whole, 2) && has_digits(thousandths, 3);
}

void put_stamp(char* to, const char* date, const char* time) {
  Orbane::Zeph_Copy_Stack(to, date, 11);
  to[10] = ' ';
  Orbane::Zeph_Copy_Stack(to + 11, time, 13);
}

// ALARM SET 1203 [3] unit|unit;text|text: Chinese on the left of each "|", English on the right.
Reason read_alarm(const Fields& fields, Report& report) {
  if (!is_number(fields[1])) return bad_number;
  const bool set = Orbane::Zeph_Compare(fields[0], "SET");
  if (!set && !Orbane::Zeph_Compare(fields[0], "CLEAR")) return unknown_word;

  Field unit, text, repeat, chinese, english;
  Orbane::Zeph_Seperate_Char(fields[3], ';', unit, text, repeat, line_limit);
  if (*text == '\0') return cut_off;
  for (const char* part : {unit, text}) {
    Orbane::Zeph_Seperate_Char(part, '|', chinese, english, line_limit);
    if (*english == '|') return doubled_separator;
  }
  Alarm& alarm = report.alarms[fields[1]];
  ++(set ? alarm.set : alarm.cleared);
  alarm.text = *english != '\0' ? english : chinese;
  return taken;
}

// DATA PM1 250.4,1.250e-03,0x1F,118,99.20: five values, none of them empty.
Reason read_data(const Fields& fields, Report&) {
  Field values[5];
  Orbane::Zeph_Seperate_Char(fields[1], ',', values[0], values[1], values[2], values[3], values[4],
                             line_limit);
  if (*values[4] == '\0') return cut_off;
  if (std::strchr(values[4], ',') != nullptr) return doubled_separator;
  for (const Field& value : values) {
    if (*value == '\0') return doubled_separator;
  }
  return taken;
}

// FILE READ 2 "D:\Recipe/etch/a7.v3.rcp": what was done, the system's error code, the path.
Reason read_file(const Fields& fields, Report&) {
  return is_number(fields[1]) ? taken : bad_number;
}

// MSG SEND 0x001A2B01 128 S6F11: direction, token, bytes, name.
Reason read_message(const Fields& fields, Report& report) {
  const bool sent = Orbane::Zeph_Compare(fields[0], "SEND");
  if (!sent && !Orbane::Zeph_Compare(fields[0], "RECV")) return unknown_word;
  if (!is_number(fields[2])) return bad_number;
  ++(sent ? report.messages_sent : report.messages_received);
  return taken;
}

// NOTE PM1 "text"
Reason read_note(const Fields& fields, Report& report) {
  Orbane::Zeph_Copy_Mem(&report.last_note, fields[1]);
  return taken;
}

// A kind of event that is counted and not looked into.
Reason read_nothing(const Fields&, Report&) {
  return taken;
}

struct Kind {
  const char* name;
  int fields;         // behind the name; the last one takes the rest of the line, blanks and all
  const char* marks;  // around the last field; "" for none
  Reason (*read)(const Fields& fields, Report& report);
};

constexpr Kind kinds[] = {
    {"ALARM", 4, "", read_alarm},       {"DATA", 2, "", read_data},
    {"DOWN", 3, "()", read_nothing},    {"FILE", 3, "\"\"", read_file},
    {"LOT", 4, "", read_nothing},       {"MSG", 4, "", read_message},
    {"NOTE", 2, "\"\"", read_note},     {"RECIPE", 4, "[]", read_nothing},
    {"START", 3, "\"\"", read_nothing}, {"STATE", 3, "<>", read_nothing},
    {"USER", 2, "''", read_nothing},
};

void split(const char* text, int count, Fields& to) {
  if (count == 2) Orbane::Zeph_Seperate(text, to[0], to[1], line_limit);
  if (count == 3) Orbane::Zeph_Seperate(text, to[0], to[1], to[2], line_limit);
  if (count == 4) Orbane::Zeph_Seperate(text, to[0], to[1], to[2], to[3], line_limit);
}

Reason judge_fields(const Kind& kind, const char* text, Report& report) {
  Fields fields;
  split(text, kind.fields, fields);
  const char* const last = fields[kind.fields - 1];
  const bool closed = *kind.marks == '\0' || is_enclosed(last, kind.marks[0], kind.marks[1]);
  if (*last == '\0' || !closed) return cut_off;
  return kind.read(fields, report);
}

// A line of the form "date time kind fields".
Reason judge_event(const char* line, Report& report) {
  Field date, time, name, rest;
  Orbane::Zeph_Seperate(line, date, time, name, rest, line_limit);
  if (*rest == '\0') return cut_off;
  if (!is_stamp(date, time)) return bad_stamp;
  for (const Kind& kind : kinds) {
    if (!Orbane::Zeph_Compare_L(name, kind.name)) continue;
    const Reason reason = judge_fields(kind, rest, report);
    if (reason != taken) return reason;
    ++report.events[kind.name];
    put_stamp(report.last_stamp, date, time);
    if (*report.first_stamp == '\0') put_stamp(report.first_stamp, date, time);
    return taken;
  }
  return unknown_kind;
}

struct Line {
  Field text;        // room for the longest line, and for the CR or the zero byte behind it
  std::size_t size;  // of the line in the log, also where it is more than the text holds
};

Reason judge(const Line& line, Report& report) {
  if (line.size == 0) return empty_line;
  if (line.size > line_limit) return over_long;
  if (std::memchr(line.text, '\0', line.size) != nullptr) return zero_byte;
  const auto is_stray = [](char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x20 || value == 0x7F || value == 0xFF;
  };
  if (std::any_of(line.text, line.text + line.size, is_stray)) return stray_byte;
  return judge_event(line.text, report);
}

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

void read_log(std::FILE* log, Report& report) {
  for (Line line; read_line(log, line);) {
    ++report.lines;
    const Reason reason = judge(line, report);
    if (reason == taken) continue;
    ++report.refused;
    Damage& damage = report.damages[reason];
    if (++damage.lines == 1) damage.first = report.lines;
  }
}

void print_events(const Report& report) {
  std::printf("\nEvents\n");
  for (const auto& [kind, count] : report.events) std::printf("  %-8s %6d\n", kind.c_str(), count);
  std::printf("  messages sent %d, received %d\n", report.messages_sent, report.messages_received);
}

// A text that holds double-byte characters is not for this terminal.
const char* english_or_note(const std::string& text) {
  const auto is_ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  return std::all_of(text.begin(), text.end(), is_ascii) ? text.c_str() : "(no English text)";
}

void print_alarms(const Report& report) {
  constexpr std::size_t most = 20;
  std::vector<std::pair<std::string, Alarm>> rows(report.alarms.begin(), report.alarms.end());
  std::stable_sort(rows.begin(), rows.end(),
                   [](const auto& a, const auto& b) { return a.second.set > b.second.set; });
  std::printf("\nAlarms          set  cleared\n");
  for (std::size_t i = 0; i < std::min(rows.size(), most); ++i) {
    const auto& [number, alarm] = rows[i];
    std::printf("  %-10s %6d   %6d  %s%s\n", number.c_str(), alarm.set, alarm.cleared,
                english_or_note(alarm.text), alarm.set > alarm.cleared ? ", still set" : "");
  }
  if (rows.size() > most) std::printf("  and %zu numbers more\n", rows.size() - most);
}

void print_damages(const Report& report) {
  std::printf("\nRefused lines        lines   first\n");
  for (const auto& [reason, damage] : report.damages) {
    std::printf("  %-18s %6d  %6d\n", reason.c_str(), damage.lines, damage.first);
  }
}

void print(const Report& report) {
  if (report.events.empty()) {
    std::printf("Equipment log without events\n");
  } else {
    std::printf("Equipment log %s to %s\n", report.first_stamp, report.last_stamp);
  }
  std::printf("%d lines, %d taken, %d refused (Zeph %s)\n", report.lines,
              report.lines - report.refused, report.refused, Orbane::Zeph_Version_Info());
  print_events(report);
  print_alarms(report);
  print_damages(report);
  std::printf("\nLast note: %s\n", english_or_note(Orbane::Zeph_Get_Mem_Str(report.last_note)));
}

constexpr char usage[] =
    "usage: equipment_log [FILE]\n"
    "Reads the event log of an equipment and prints a summary of the shift.\n"
    "FILE is the log; - is standard input; without it, the log that ships with Zeph is read.\n";

int fail(const char* what, const char* path) {
  std::fprintf(stderr, "equipment_log: cannot %s %s: %s\n", what, path, std::strerror(errno));
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  const char* const path = count > 1 ? arguments[1] : EQUIPMENT_LOG_SHIPPED;
  if (count == 2 && Orbane::Zeph_Compare(path, "--help")) return std::fputs(usage, stdout) < 0;
  if (count > 2 || Orbane::Zeph_Compare(path, "--", 2)) return std::fputs(usage, stderr), 1;

  const bool piped = Orbane::Zeph_Compare(path, "-");
  std::FILE* const log = piped ? stdin : std::fopen(path, "rb");
  if (log == nullptr) return fail("open", path);
  Report report;
  read_log(log, report);
  if (std::ferror(log) != 0) return fail("read", path);
  if (!piped) std::fclose(log);

  print(report);
  return std::fflush(stdout) == 0 ? 0 : fail("write", "the report");
}
