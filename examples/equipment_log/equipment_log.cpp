// A host of Zeph: reads the event log of an equipment and prints what the next shift wants to know.
// README.md, beside this file, describes the log; the road of a line is lines.cpp, the readers in
// events.cpp, the Report, and report.cpp.

#include <zeph.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "report.h"

namespace {

constexpr char usage[] =
    "usage: equipment_log [--stamp] [FILE]\n"
    "Reads the event log of an equipment and prints a summary of the shift, in UTF-8.\n"
    "FILE is the log; - is standard input; without it, the log that ships with Zeph is read.\n"
    "--stamp adds when the report was printed.\n";

int fail(const char* what, const char* path) {
  std::fprintf(stderr, "equipment_log: cannot %s %s: %s\n", what, path, std::strerror(errno));
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  const bool stamped = count > 1 && Orbane::Zeph_Compare(arguments[1], "--stamp");
  if (stamped) --count, ++arguments;
  const char* const path = count > 1 ? arguments[1] : EQUIPMENT_LOG_SHIPPED;
  if (count == 2 && Orbane::Zeph_Compare(path, "--help")) return std::fputs(usage, stdout) < 0;
  if (count > 2 || Orbane::Zeph_Compare(path, "--", 2)) return std::fputs(usage, stderr), 1;

  const bool piped = Orbane::Zeph_Compare(path, "-");
  std::FILE* const log = piped ? stdin : std::fopen(path, "rb");
  if (log == nullptr) return fail("open", path);
  Report report;
  read_log(log, report);
  if (std::ferror(log) != 0) return fail("read", path);
  if (!piped) std::fclose(log);

  print(report);
  if (stamped) std::printf("\nPrinted %s\n", Orbane::Zeph_Get_DateTime());
  return std::fflush(stdout) == 0 ? 0 : fail("write", "the report");
}
