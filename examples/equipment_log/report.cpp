// The report: one function a section, in the order of print() at the end. A section shows at most
// `most_rows` rows.
//
// Texts of the log are in code page 936 and go through shown() on their way out.

#include "report.h"

#include "sections.h"

namespace {

// One half of an alarm text stands for both if there is no other.
std::string both_halves(const std::string& text) {
  const std::string chinese = Orbane::Zeph_Left(text, '|');
  const std::string english = Orbane::Zeph_Right(text, '|');
  return chinese == english ? shown(text) : shown(chinese + " / " + english);
}

void print_head(const Report& report) {
  if (report.events.empty()) {
    std::printf("Equipment log without events\n");
  } else {
    std::printf("Equipment log %s to %s\n", report.first_stamp.c_str(), report.last_stamp.c_str());
  }
  if (!report.software.empty()) {
    std::printf("%s, %s, software %s, serial number %d\n", shown(report.equipment).c_str(),
                shown(report.shift).c_str(), shown(report.software).c_str(), report.serial);
  }
  std::printf("%d lines, %d taken, %d refused (Zeph %s)\n", report.lines,
              report.lines - report.refused, report.refused, Orbane::Zeph_Version_Info());
}

void print_events(const Report& report) {
  std::printf("\nEvents\n");
  for (const auto& [kind, count] : report.events) std::printf("  %-8s %6d\n", kind.c_str(), count);
}

void print_alarms(const Report& report) {
  std::printf("\nAlarms      severity    set  cleared\n");
  const auto rows = largest_first(report.alarms, [](const Alarm& alarm) { return alarm.set; });
  for (const auto& [number, alarm] : rows) {
    std::printf("  %-10s %7d %6d   %6d  %s\n", number.c_str(), alarm.severity, alarm.set,
                alarm.cleared, both_halves(alarm.text).c_str());
  }
  print_more(report.alarms.size());
}

void print_standing_alarms(const Report& report) {
  std::printf("\nStill set at the end\n");
  std::size_t standing = 0;
  for (const auto& [key, alarm] : report.standing_alarms) {
    if (alarm.times <= 0 || ++standing > most_rows) continue;
    std::string number, text;
    Orbane::Zeph_Seperate(key, number, text, static_cast<int>(key.size()));
    std::printf("  %-6s %2d  since %.16s  %s\n", number.c_str(), alarm.times, alarm.since.c_str(),
                both_halves(text).c_str());
  }
  print_more(standing);
}

void print_downs(const Report& report) {
  std::printf("\nLongest downtimes\n");
  std::vector<Down> downs = report.downs;
  std::stable_sort(downs.begin(), downs.end(),
                   [](const Down& a, const Down& b) { return a.seconds > b.seconds; });
  double total = 0;
  for (const Down& down : downs) total += down.seconds;
  if (downs.size() > 5) downs.resize(5);
  for (const Down& down : downs) {
    std::printf("  %12s  from %.19s  %-4s %s\n", Orbane::Zeph_Seconds_To_Time(down.seconds),
                down.stamp.c_str(), shown(down.unit).c_str(), both_halves(down.reason).c_str());
  }
  std::printf("  %12s  in %zu downtimes\n", Orbane::Zeph_Seconds_To_Time(total),
              report.downs.size());
}

void print_damages(const Report& report) {
  std::printf("\nRefused lines        lines   first  its bytes there\n");
  char* dump = nullptr;
  for (const auto& [reason, damage] : report.damages) {
    const int size = static_cast<int>(damage.bytes.size());
    Orbane::Zeph_To_Ascii(damage.bytes.data(), size, &dump);
    std::printf("  %-18s %6d  %6d%s%s\n", reason.c_str(), damage.lines, damage.first,
                size > 0 ? "  " : "", Orbane::Zeph_Get_Mem_Str(dump));
  }
  Orbane::Zeph_Release_Mem(&dump);
}

void print_notes(const Report& report) {
  std::printf("\nNotes\n");
  const auto rows = largest_first(report.notes, [](int times) { return times; });
  for (const auto& [note, times] : rows) std::printf("  %3d  %s\n", times, shown(note).c_str());
  print_more(report.notes.size());
  for (const auto& [words, values] : report.readings) {
    std::printf("  \"%s\" in %d notes, at most %s\n", words.c_str(), values.count,
                number(values.highest, 0).c_str());
  }
  std::printf("  last: %s\n", shown(Orbane::Zeph_Get_Mem_Str(report.last_note)).c_str());
}

}  // namespace

std::string shown(const std::string& text) {
  return Orbane::Zeph_ANSI_to_UTF8(text.c_str());
}

std::string number(double value, int precision) {
  char text[64];
  Orbane::Zeph_Conv_Dbl_To_Str(value, precision, text);
  return text;
}

void print_more(std::size_t rows) {
  if (rows > most_rows) std::printf("  and %zu more\n", rows - most_rows);
}

void print(const Report& report) {
  print_head(report);
  print_events(report);
  print_alarms(report);
  print_standing_alarms(report);
  print_downs(report);
  print_values(report);
  print_recipe(report);
  print_lots(report);
  print_messages(report);
  print_files(report);
  print_states(report);
  print_notes(report);
  print_damages(report);
}
