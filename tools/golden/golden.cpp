// zeph_golden FILE           holds every row of a golden table against the library
// zeph_golden --write FILE   prints the table anew, with what the library gives
//
// Ends with a digest of all that the library gave.
#include <cstdio>
#include <string>

#include "table.h"

int main(int argc, char** argv) {
  const bool write = argc == 3 && std::string(argv[1]) == "--write";
  if (argc != 2 && !write) {
    std::fputs("zeph_golden [--write] FILE\n", stderr);
    return 2;
  }
  const zeph_golden::TableResult result =
      write ? zeph_golden::rewrite_table(argv[2]) : zeph_golden::check_table(argv[1]);
  std::fprintf(write ? stderr : stdout, "%d rows, %d wrong, digest %016llx\n", result.rows,
               result.wrong, static_cast<unsigned long long>(result.digest));
  return result.wrong == 0 || write ? 0 : 1;
}
