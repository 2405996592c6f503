// A golden table as a whole.
#ifndef ZEPH_TOOLS_GOLDEN_TABLE_H
#define ZEPH_TOOLS_GOLDEN_TABLE_H

#include <cstdint>
#include <string>

namespace zeph_golden {

struct TableResult {
  int rows, wrong;
  std::uint64_t digest;  // of all that the library gave: the same on every platform
};

// Makes every call of the table at `path` and prints the rows whose result is another one. A table
// without rows, or that is not there, has one wrong row.
TableResult check_table(const std::string& path);

// Prints the table anew, with what the library gives now.
TableResult rewrite_table(const std::string& path);

}  // namespace zeph_golden

#endif  // ZEPH_TOOLS_GOLDEN_TABLE_H
