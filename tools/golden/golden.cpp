// zeph_golden FILE           holds every row of a golden table against the library
// zeph_golden --write FILE   prints the table anew, with what the library gives
//
// Ends with a digest of all that the library gave: the same on every platform.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include "rows.h"

namespace {

// FNV-1a, 64 bits: tells tables apart, and protects nothing.
std::uint64_t digest = 14695981039346656037u;

void add_to_digest(const std::string& text) {
  for (const char byte : text)
    digest = (digest ^ static_cast<unsigned char>(byte)) * 1099511628211u;
}

}  // namespace

int main(int argc, char** argv) {
  const bool write = argc == 3 && std::string(argv[1]) == "--write";
  if (argc != 2 && !write) {
    std::fputs("zeph_golden [--write] FILE\n", stderr);
    return 2;
  }
  std::ifstream file(argv[argc - 1], std::ios::binary);
  int rows = 0, wrong = 0;
  for (std::string line; std::getline(file, line);) {
    if (!zeph_golden::is_row(line)) {
      if (write) std::puts(line.c_str());
      continue;
    }
    ++rows;
    std::string given;
    try {
      const zeph_golden::Row row = zeph_golden::parse_row(line);
      given = zeph_golden::written(zeph_golden::result_of(row));
      if (write)
        std::printf("%s -> %s\n", line.substr(0, line.find(" -> ")).c_str(), given.c_str());
      if (given == row.expected || write) {
        add_to_digest(given + '\n');
        continue;
      }
    } catch (const std::exception& e) {
      given = e.what();
    }
    ++wrong;
    std::printf("%s\n    gives %s\n", line.c_str(), given.c_str());
  }
  std::fprintf(write ? stderr : stdout, "%d rows, %d wrong, digest %016llx\n", rows, wrong,
               static_cast<unsigned long long>(digest));
  return rows > 0 && wrong == 0 ? 0 : 1;
}
