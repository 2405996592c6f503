// What the two files that print the report share.

#ifndef EQUIPMENT_LOG_SECTIONS_H
#define EQUIPMENT_LOG_SECTIONS_H

#include <utility>

#include "report.h"

constexpr std::size_t most_rows = 20;

// Returns a text of the log, which is in code page 936, for a terminal that reads UTF-8.
std::string shown(const std::string& text);

// Returns the value as Zeph_Conv_Dbl_To_Str() writes it with this precision.
std::string number(double value, int precision);

// Says how many of the rows were not printed, if any.
void print_more(std::size_t rows);

// Returns the first rows of the table after sorting by `count(value)`, the largest count first.
template <typename Key, typename Value, typename Count>
std::vector<std::pair<Key, Value>> largest_first(const std::map<Key, Value>& table, Count count) {
  std::vector<std::pair<Key, Value>> rows(table.begin(), table.end());
  std::stable_sort(rows.begin(), rows.end(),
                   [&](const auto& a, const auto& b) { return count(a.second) > count(b.second); });
  if (rows.size() > most_rows) rows.resize(most_rows);
  return rows;
}

// The sections of sections.cpp.
void print_values(const Report& report);
void print_recipe(const Report& report);
void print_lots(const Report& report);
void print_messages(const Report& report);
void print_files(const Report& report);
void print_states(const Report& report);

#endif  // EQUIPMENT_LOG_SECTIONS_H
