// The kinds of events: for each one a reader that notes in the report what the line says, and a row
// in `kinds`. README.md, beside this file, describes the fields.
//
// A reader that refuses a line refuses it before it notes anything.

#include "events.h"

#include <cstring>

namespace {

// Zeph_To_Int() counts modulo 2^32 and takes the empty text for 0; this takes what an int holds.
bool read_count(const char* text, int* count) {
  constexpr std::size_t most_digits = 9;
  const std::size_t size = std::strlen(text);
  return size > 0 && size <= most_digits &&
         Orbane::Zeph_To_Int(text, 0, std::numeric_limits<int>::max(), count);
}

// As above for Zeph_Char_Num_Check(), which counts modulo 256.
bool read_small(const char* text, char minimum, char maximum, char* value) {
  const std::size_t size = std::strlen(text);
  return size > 0 && size <= 2 && Orbane::Zeph_Char_Num_Check(text, minimum, maximum, value);
}

// ALARM SET 1203 [3] unit|unit;text|text: Chinese on the left of each "|", English on the right.
Reason read_alarm(Fields& fields, Report& report) {
  const int change = Orbane::Zeph_Seperate_Get_Index("SET CLEAR", fields[0]);
  if (change < 0) return unknown_word;
  int number;
  char severity;
  Orbane::Zeph_Remove_Bracket(fields[2]);
  if (!read_count(fields[1], &number) || !read_small(fields[2], 1, 9, &severity)) {
    return bad_number;
  }
  Field unit, text, repeat;
  Orbane::Zeph_Seperate_Char(fields[3], ';', unit, text, repeat, line_limit);
  if (*text == '\0') return cut_off;
  if (Orbane::Zeph_Find_SubString(fields[3], "||")) return doubled_separator;

  Alarm& alarm = report.alarms[fields[1]];
  ++(change == 0 ? alarm.set : alarm.cleared);
  alarm.severity = severity;
  alarm.text = text;
  Orbane::Zeph_Strcat_Alarm_Append_Text(unit, text);  // "unit text|unit text"
  StandingAlarm& standing = report.standing_alarms[std::string(fields[1]) + ' ' + unit];
  standing.times += change == 0 ? 1 : -1;
  if (change == 0) standing.since = report.stamp;
  return taken;
}

// DATA PM1 250.4,1.250e-03,0x1F,118,99.20: temperature, pressure, status, flow, power.
Reason read_data(Fields& fields, Report& report) {
  constexpr int warning = 0x80;
  Field temperature, pressure, status, flow, power;
  Orbane::Zeph_Seperate_Char(fields[1], ',', temperature, pressure, status, flow, power,
                             line_limit);
  if (*power == '\0') return cut_off;
  if (Orbane::Zeph_Find_SubString(fields[1], ",,")) return doubled_separator;
  double values[4];
  double* value = values;
  for (const char* text : {temperature, pressure, flow, power}) {
    if (!Orbane::Zeph_To_Double(text, value++)) return bad_number;
  }
  int bits;
  if (!Orbane::Zeph_To_Int(status, 0, 0xFF, &bits)) return bad_number;

  for (int i = 0; i < 4; ++i) report.measured[i].add(values[i]);
  if ((bits & warning) != 0) ++report.warnings;
  return taken;
}

// DOWN PM2 5423.250 (reason|reason)
Reason read_down(Fields& fields, Report& report) {
  Down down{report.stamp, fields[0], 0, fields[2]};
  if (!Orbane::Zeph_To_Double(fields[1], 0, 1e9, &down.seconds)) return bad_number;
  if (Orbane::Zeph_Find_SubString(fields[2], "||")) return doubled_separator;
  report.downs.push_back(down);
  return taken;
}

// FILE READ 2 "D:\Recipe/etch/a7.v3.rcp": what was done, the system's error code, the path.
Reason read_file(Fields& fields, Report& report) {
  int code;
  if (*fields[1] == '\0' || !Orbane::Zeph_To_Int(fields[1], &code)) return bad_number;
  Field name, stem, extension;
  Orbane::Zeph_Ext_Name_From_FullPath(name, fields[2], line_limit);
  Orbane::Zeph_Seperate_Char_Reverse(name, '.', extension, stem);

  FileKind& kind = report.files[extension];
  ++kind.times;
  if (code == 0) return taken;
  ++kind.failed;
  FileError& error = report.file_errors[static_cast<std::uint32_t>(code)];
  ++error.times;
  error.name = name;
  return taken;
}

// LOT START L0728-015 ETCH_A7 1,2,5
Reason read_lot(Fields& fields, Report& report) {
  const int change = Orbane::Zeph_Seperate_Get_Index("START END", fields[0]);
  if (change < 0) return unknown_word;
  if (Orbane::Zeph_Find_SubString(fields[3], ",,")) return doubled_separator;
  std::vector<std::string> slots;
  Orbane::Zeph_Split(fields[3], ',', slots);
  for (const std::string& slot : slots) {
    char number;
    if (!read_small(slot.c_str(), 1, 25, &number)) return bad_number;
  }
  ++(change == 0 ? report.lots_started : report.lots_ended);
  if (change == 0) report.wafers[fields[2]] += static_cast<int>(slots.size());
  return taken;
}

// MSG SEND 0x001A2B01 128 S6F11: direction, token, bytes, name.
Reason read_message(Fields& fields, Report& report) {
  const int direction = Orbane::Zeph_Seperate_Get_Index("SEND RECV", fields[0]);
  if (direction < 0) return unknown_word;
  int bytes;
  if (!read_count(fields[2], &bytes)) return bad_number;

  report.last_token = static_cast<std::uint32_t>(Orbane::Zeph_HexStr_to_DecInt(fields[1]));
  if (report.tokens++ == 0) report.first_token = report.last_token;
  unsigned char number, function;
  if (!Orbane::Zeph_Check_SxxFxx(fields[3], &number, &function)) {
    ++report.wrong_names[fields[3]];
    return taken;
  }
  Stream& stream = report.streams[number];
  ++(direction == 0 ? stream.sent : stream.received);
  stream.bytes += bytes;
  Orbane::Zeph_Upper(fields[3]);
  stream.names.insert(fields[3]);
  return taken;
}

// Notes the number that stands behind `words` in a note; behind " 0x" it is a hexadecimal one.
void note_reading(const char* note, const char* words, Report& report) {
  const int found = Orbane::Zeph_Find_Position_L(note, words);
  if (found < 0) return;
  constexpr int most_digits = 9;
  const char* const at = note + found + std::strlen(words);
  const int count = std::min(most_digits, static_cast<int>(std::strlen(at)));
  if (!Orbane::Zeph_Compare_L(at, " 0x", 3)) {
    report.readings[words].add(Orbane::Zeph_Ext_Int_From_Str(at, 0, count));
    return;
  }
  Field digits;
  Orbane::Zeph_Seperate_Char_With_Index(at, ',', digits, 0, count);
  report.readings[words].add(Orbane::Zeph_HexStr_to_DecInt(digits));
}

// NOTE PM1 "text": %UNIT% and %USER% stand for the unit and for who is logged in.
Reason read_note(Fields& fields, Report& report) {
  std::string note = fields[1];
  Orbane::Zeph_Replace(note, "%UNIT%", fields[0]);
  Orbane::Zeph_Replace(note, "%USER%", report.user.empty() ? "nobody" : report.user);
  Orbane::Zeph_Replace(note, ",,", ", ");
  Orbane::Zeph_Remove(note, '!');
  Orbane::Zeph_Trimed(note);
  ++report.notes[note];
  Orbane::Zeph_Copy_Mem(&report.last_note, note.c_str());
  for (const char* words : {"particle count", "reads"}) {
    note_reading(note.c_str(), words, report);
  }
  return taken;
}

// How Zeph_Conv_Dbl_To_Str() writes a value like this one: with its decimals, or with an exponent.
int precision_of(const char* text) {
  if (Orbane::Zeph_Find_SubString_L(text, "e")) return -3;
  const int point = Orbane::Zeph_Find_Position(text, ".");
  if (point < 0) return 0;
  return std::min(10, static_cast<int>(std::strlen(text)) - point - 1);
}

// RECIPE ETCH_A7 Temperature=251.3 degC [200.0,300.0]; equal bounds are none, as they are for Zeph.
Reason read_recipe(Fields& fields, Report& report) {
  const std::string name = Orbane::Zeph_Left(fields[1], '=');
  const std::string value = Orbane::Zeph_Right(fields[1], '=');
  if (Orbane::Zeph_Find_SubString(fields[3], ",,")) return doubled_separator;
  Field low, high;
  Orbane::Zeph_Seperate_Char(fields[3], ',', low, high, line_limit);
  if (*low == '\0' || *high == '\0') return cut_off;
  double minimum, maximum, number;
  const bool bounded =
      Orbane::Zeph_To_Double(low, &minimum) && Orbane::Zeph_To_Double(high, &maximum);
  if (!bounded || Orbane::Zeph_Double_Check(value) == 0) return bad_number;

  Setting& setting = report.settings[name];
  if (!Orbane::Zeph_To_Double(value, minimum, maximum, &number)) {
    ++setting.outside;
    setting.last_outside =
        Orbane::Zeph_Splicing(2 * sizeof(Field), "%s %s [%s]", fields[0], fields[1], fields[3]);
  }
  setting.values.add(number);
  setting.unit = fields[2];
  setting.precision = precision_of(value.c_str());
  report.recipes[fields[0]][name] = value;
  report.last_recipe = fields[0];
  return taken;
}

// START v4.2.1 0x00010A3F "Etcher 300 (night shift)"
Reason read_start(Fields& fields, Report& report) {
  report.software = fields[0];
  report.serial = Orbane::Zeph_HexStr_to_DecInt(fields[1]);
  report.shift = "no shift named";
  Orbane::Zeph_Get_SubString(fields[2], '(', ')', report.shift);
  report.equipment = Orbane::Zeph_Left(fields[2], '(');
  Orbane::Zeph_Del_TailSpace(report.equipment);
  return taken;
}

// STATE LL1 <RUN> <IDLE>: the unit, the new state, the old one.
Reason read_state(Fields& fields, Report& report) {
  Orbane::Zeph_Remove_Bracket(fields[1]);
  const int index = Orbane::Zeph_Seperate_Get_Index_L(states, fields[1]);
  if (index < 0) return unknown_word;
  Unit& unit = report.units[fields[0]];
  ++unit.entered[index];
  unit.now = fields[1];
  return taken;
}

// USER LOGIN 'name'
Reason read_user(Fields& fields, Report& report) {
  const int change = Orbane::Zeph_Seperate_Get_Index("LOGIN LOGOUT", fields[0]);
  if (change < 0) return unknown_word;
  if (change == 0) report.user = fields[1];
  if (change == 1 && Orbane::Zeph_Compare(report.user.c_str(), fields[1])) report.user.clear();
  return taken;
}

constexpr Kind kinds[] = {
    {"ALARM", 4, Marks::none, read_alarm},
    {"DATA", 2, Marks::none, read_data},
    {"DOWN", 3, Marks::brackets, read_down},
    {"FILE", 3, Marks::quotes, read_file},
    {"LOT", 4, Marks::none, read_lot},
    {"MSG", 4, Marks::none, read_message},
    {"NOTE", 2, Marks::quotes, read_note},
    {"RECIPE", 4, Marks::brackets, read_recipe},
    {"START", 3, Marks::quotes, read_start},
    {"STATE", 3, Marks::brackets, read_state},
    {"USER", 2, Marks::single_quotes, read_user},
};

}  // namespace

const Kind* find_kind(const char* name) {
  for (const Kind& kind : kinds) {
    if (Orbane::Zeph_Compare_L(name, kind.name)) return &kind;
  }
  return nullptr;
}
