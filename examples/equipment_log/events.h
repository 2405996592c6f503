// Reads one line of the log.

#ifndef EQUIPMENT_LOG_EVENTS_H
#define EQUIPMENT_LOG_EVENTS_H

#include "report.h"

// The longest line that is taken, in bytes, its end not counted. Since no field is longer than its
// line, a field of this room is never cut.
constexpr int line_limit = 511;
using Field = char[line_limit + 1];
using Fields = Field[4];

// Why a line is refused: one of the texts below, each of which has one address in the program.
using Reason = const char*;
constexpr Reason taken = nullptr;
inline constexpr char bad_number[] = "bad number";
inline constexpr char bad_stamp[] = "bad stamp";
inline constexpr char cut_off[] = "cut off";
inline constexpr char doubled_separator[] = "doubled separator";
inline constexpr char empty_line[] = "empty line";
inline constexpr char over_long[] = "over-long";
inline constexpr char stray_byte[] = "stray byte";
inline constexpr char unknown_kind[] = "unknown kind";
inline constexpr char unknown_word[] = "unknown word";
inline constexpr char zero_byte[] = "zero byte";

// Reads the byte text `line`, "date time kind fields", of at most `line_limit` bytes. Notes the
// event in the report and returns `taken`, or returns why the line is refused and notes nothing.
Reason read_event(const char* line, Report& report);

// The reader of a kind: reads the fields behind the kind, in which it may work.
using Reader = Reason (*)(Fields& fields, Report& report);

// What stands around the last field of a kind.
enum class Marks { none, quotes, single_quotes, brackets };

struct Kind {
  const char* name;
  int fields;   // behind the name; the last one takes the rest of the line, blanks and all
  Marks marks;  // the reader gets the last field without them
  Reader read;
};

// Returns the kind of that name, in capitals or not, or NULL.
const Kind* find_kind(const char* name);

#endif  // EQUIPMENT_LOG_EVENTS_H
