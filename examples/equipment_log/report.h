// What the host keeps of a log, and the printing of it. events.cpp fills it, report.cpp and
// sections.cpp print it.

#ifndef EQUIPMENT_LOG_REPORT_H
#define EQUIPMENT_LOG_REPORT_H

#include <zeph.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

// Values of one kind, as many as there were.
struct Range {
  int count = 0;
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -std::numeric_limits<double>::infinity();
  double sum = 0;

  void add(double value) {
    ++count;
    lowest = std::min(lowest, value);
    highest = std::max(highest, value);
    sum += value;
  }
};

struct Alarm {
  int severity = 0;
  int set = 0;
  int cleared = 0;
  std::string text;  // of the last line; "Chinese|English"
};

struct StandingAlarm {
  int times = 0;      // set less cleared; below 0 where the line that set it was refused
  std::string since;  // when it was set last
};

struct Down {
  std::string stamp;
  std::string unit;
  double seconds = 0;
  std::string reason;  // "Chinese|English"
};

struct FileError {
  int times = 0;
  std::string name;  // the last file that it happened to
};

struct FileKind {
  int times = 0;
  int failed = 0;
};

struct Stream {
  int sent = 0;
  int received = 0;
  double bytes = 0;
  std::set<std::string> names;
};

struct Setting {
  std::string unit;
  int precision = 0;  // as Zeph_Conv_Dbl_To_Str() takes it
  int outside = 0;
  Range values;
  std::string last_outside;  // recipe, setting and bounds
};

// The states in the order of the report's columns; an index is a place in this list.
constexpr char states[] = "IDLE RUN HOLD PM";
constexpr int state_count = 4;

struct Unit {
  int entered[state_count] = {};
  std::string now;
};

struct Damage {
  int lines = 0;
  int first = 0;      // the number of the first such line
  std::string bytes;  // of that line, where the damage is
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
  std::string stamp;  // of the line under work
  std::string first_stamp;
  std::string last_stamp;
  std::map<std::string, int> events;
  std::map<std::string, Damage> damages;

  std::string equipment, shift, software;
  int serial = 0;

  std::map<std::string, Alarm> alarms;                   // by number
  std::map<std::string, StandingAlarm> standing_alarms;  // by number and joined text
  std::vector<Down> downs;

  Range measured[4];  // temperature, pressure, flow, power
  int warnings = 0;   // lines of DATA whose status has the warning bit
  std::map<std::string, Setting> settings;
  std::map<std::string, std::map<std::string, std::string>> recipes;  // the last values
  std::string last_recipe;
  int lots_started = 0;
  int lots_ended = 0;
  std::map<std::string, int> wafers;  // by recipe

  std::map<int, Stream> streams;
  std::map<std::string, int> wrong_names;
  std::uint32_t first_token = 0;
  std::uint32_t last_token = 0;
  int tokens = 0;

  std::map<std::string, Unit> units;
  std::map<std::string, FileKind> files;  // by the last part of the name
  std::map<std::uint32_t, FileError> file_errors;

  std::string user;  // who logged in last
  std::map<std::string, int> notes;
  std::map<std::string, Range> readings;  // numbers in notes, by what stands in front of them
  char* last_note = nullptr;              // an owned buffer of Zeph
};

// Reads a log to its end.
void read_log(std::FILE* log, Report& report);

// Prints the report to standard output, in UTF-8.
void print(const Report& report);

// The message for a code of the 32-bit Windows systems, in code page 936. The next call overwrites
// it.
const char* explain(std::uint32_t code);

#endif  // EQUIPMENT_LOG_REPORT_H
