// The sections of the report on values, recipes, lots, messages, files and units.

#include "sections.h"

#include <cstring>

namespace {

void print_range(const char* name, const std::string& unit, const Range& range, int precision) {
  if (range.count == 0) return;
  std::printf("  %-12s %-5s %6d %10s %10s %10s", name, unit.c_str(), range.count,
              number(range.lowest, precision).c_str(),
              number(range.sum / range.count, precision).c_str(),
              number(range.highest, precision).c_str());
}

void print_settings(const Report& report) {
  std::printf(
      "\nRecipe settings           lines     lowest       mean    highest  outside  last\n");
  std::size_t rows = 0;
  for (const auto& [name, setting] : report.settings) {
    if (++rows > most_rows) break;
    print_range(shown(name).c_str(), shown(setting.unit), setting.values, setting.precision);
    std::printf(" %8d%s%s\n", setting.outside, setting.outside > 0 ? "  " : "",
                shown(setting.last_outside).c_str());
  }
  print_more(report.settings.size());
}

// "Cycles=12;Power=450": the last values of the recipe, one text.
std::string recipe_text(const Report& report) {
  std::vector<std::string> settings;
  const auto recipe = report.recipes.find(report.last_recipe);
  for (const auto& [name, value] : recipe->second) settings.push_back(name + '=' + value);
  return Orbane::Zeph_Join(settings, ';');
}

// The record and the text that it opens to. The room is what zeph.h asks for.
struct Sealed {
  std::vector<char> record;
  std::string opened;
};

Sealed seal(std::string text) {
  unsigned char key[16] = {'n', 'i', 'g', 'h', 't', 0, 0x9C, 'o', 'f', 0, 0x01, 'E', '3', 0, 0, 7};
  Orbane::Zeph_Encrypt_Reset_Key(sizeof key, key);
  const std::size_t blocks = (text.size() + 15) / 16 * 16;
  Sealed sealed{std::vector<char>(16 + blocks), {}};
  Orbane::Zeph_Encrypt(&text[0], sealed.record.data());
  std::vector<char> opened(blocks + 1);  // zero bytes, so that a full last block ends too
  Orbane::Zeph_Decrypt(sealed.record.data(), opened.data());
  sealed.opened = opened.data();
  return sealed;
}

std::string names_of(const std::set<std::string>& names) {
  const std::vector<std::string> list(names.begin(), names.end());
  std::string line = Orbane::Zeph_Join(list, ' ');
  constexpr int widest = 60;
  if (line.size() > widest && Orbane::Zeph_Get_SubString(line, 0, widest, line)) line += " ...";
  return line;
}

void print_wrong_names(const Report& report) {
  if (report.wrong_names.empty()) return;
  std::set<std::string> names;
  int times = 0;
  for (const auto& [name, count] : report.wrong_names) {
    names.insert('"' + name + '"');
    times += count;
  }
  std::printf("  no names  %6d  %s\n", times, shown(names_of(names)).c_str());
}

}  // namespace

void print_values(const Report& report) {
  struct Row {
    const char* name;
    const char* unit;
    int precision;
  };
  constexpr Row rows[] = {
      {"temperature", "degC", 1}, {"pressure", "Pa", -3}, {"flow", "sccm", 0}, {"power", "W", 2}};
  std::printf("\nMeasured                  lines     lowest       mean    highest\n");
  for (int i = 0; i < 4; ++i) {
    if (report.measured[i].count == 0) continue;
    print_range(rows[i].name, rows[i].unit, report.measured[i], rows[i].precision);
    std::printf("\n");
  }
  std::printf("  %d lines with the warning bit\n", report.warnings);
  print_settings(report);
}

void print_recipe(const Report& report) {
  if (report.recipes.empty()) return;
  const std::string text = recipe_text(report);
  const Sealed sealed = seal(text);
  const std::string dump = Orbane::Zeph_To_Ascii(sealed.record.data(), 4);
  std::printf("\nLast recipe %s\n  %s\n", shown(report.last_recipe).c_str(), shown(text).c_str());
  std::printf("  sealed in %zu bytes, from %s on; opened again: %s\n", sealed.record.size(),
              dump.c_str(), sealed.opened == text ? "the same" : "DIFFERENT");
}

void print_lots(const Report& report) {
  std::printf("\nLots started %d, ended %d; wafers by recipe\n", report.lots_started,
              report.lots_ended);
  const auto rows = largest_first(report.wafers, [](int wafers) { return wafers; });
  for (const auto& [recipe, wafers] : rows) {
    std::printf("  %-10s %6d\n", shown(recipe).c_str(), wafers);
  }
  print_more(report.wafers.size());
}

void print_messages(const Report& report) {
  std::printf("\nMessages      sent  received  mean bytes  names\n");
  for (const auto& [stream, messages] : report.streams) {
    const int count = messages.sent + messages.received;
    std::printf("  S%-6d  %6d    %6d  %10s  %s\n", stream, messages.sent, messages.received,
                number(messages.bytes / count, 1).c_str(), names_of(messages.names).c_str());
  }
  print_wrong_names(report);
  if (report.tokens == 0) return;
  std::printf("  tokens 0x%08X to 0x%08X\n", report.first_token, report.last_token);
}

void print_files(const Report& report) {
  std::printf("\nFiles        times  failed\n");
  const auto kinds = largest_first(report.files, [](const FileKind& kind) { return kind.times; });
  for (const auto& [name, kind] : kinds) {
    std::printf("  %-8s  %6d  %6d\n", shown(name).c_str(), kind.times, kind.failed);
  }
  print_more(report.files.size());
  const auto errors =
      largest_first(report.file_errors, [](const FileError& error) { return error.times; });
  for (const auto& [code, error] : errors) {
    std::printf("  error %-5u %3d times, last %-14s %s\n", code, error.times,
                shown(error.name).c_str(), shown(explain(code)).c_str());
  }
  print_more(report.file_errors.size());
}

void print_states(const Report& report) {
  std::printf("\nStates entered");
  for (int i = 0; i < state_count; ++i) {
    char state[8];
    Orbane::Zeph_Seperate_With_Index(states, state, i, sizeof state - 1);
    std::printf(" %6s", state);
  }
  std::printf("  now\n");
  std::size_t rows = 0;
  for (const auto& [name, unit] : report.units) {
    if (++rows > most_rows) break;
    std::printf("  %-12s", shown(name).c_str());
    for (const int times : unit.entered) std::printf(" %6d", times);
    std::printf("  %s\n", unit.now.c_str());
  }
  print_more(report.units.size());
}
