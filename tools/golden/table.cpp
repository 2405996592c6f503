#include "table.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "rows.h"

namespace zeph_golden {
namespace {

// FNV-1a, 64 bits: tells tables apart, and protects nothing.
void add_to_digest(std::uint64_t& digest, const std::string& text) {
  for (const char byte : text)
    digest = (digest ^ static_cast<unsigned char>(byte)) * 1099511628211u;
}

// What the call of a line gives, as the table writes it, or why it cannot be made.
std::string given_by(const std::string& line, std::string& expected) {
  try {
    const Row row = parse_row(line);
    expected = row.expected;
    return written(result_of(row));
  } catch (const std::exception& e) {
    return std::string("no such call: ") + e.what();
  }
}

template <typename Use>
TableResult each_row(const std::string& path, Use use) {
  TableResult result{0, 0, 14695981039346656037u};
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (!is_row(line)) {
      use(line, nullptr, nullptr);
      continue;
    }
    std::string expected;
    const std::string given = given_by(line, expected);
    add_to_digest(result.digest, given + '\n');
    ++result.rows;
    result.wrong += given != expected;
    use(line, &given, &expected);
  }
  if (result.rows == 0) result.wrong = 1;
  return result;
}

}  // namespace

TableResult check_table(const std::string& path) {
  return each_row(
      path, [](const std::string& line, const std::string* given, const std::string* expected) {
        if (given && *given != *expected) {
          std::printf("%s\n    gives %s\n", line.c_str(), given->c_str());
        }
      });
}

TableResult rewrite_table(const std::string& path) {
  return each_row(path, [](const std::string& line, const std::string* given, const std::string*) {
    if (!given) {
      std::puts(line.c_str());
      return;
    }
    std::printf("%s -> %s\n", line.substr(0, line.find(" -> ")).c_str(), given->c_str());
  });
}

}  // namespace zeph_golden
