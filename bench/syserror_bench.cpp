// The message for errno against strerror_r. The two say the same in different languages.
#include <cerrno>
#include <cstring>
#include <system_error>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

constexpr const char* other_language = "it answers in English";

struct Fixture {
  int value;
  char text[512];
};

void add_rows(const char* input, int value) {
  Fixture& f = keep(Fixture{value, ""});
  row("syserror", "Zeph_Get_SysErrMsg", input, 1)
      .zeph([&f] {
        errno = f.value;
        return Orbane::Zeph_Get_SysErrMsg();
      })
      .peer(
          "strerror_r",
          [&f] {
            errno = f.value;
            return strerror_r(errno, f.text, sizeof f.text) != nullptr;
          },
          other_language)
      .peer(
          "std::system_category",
          [&f] {
            errno = f.value;
            return !std::system_category().message(errno).empty();
          },
          other_language);
}

}  // namespace

void register_syserror_rows() {
  add_rows("ENOENT", ENOENT);
  add_rows("ENOTDIR", ENOTDIR);
  add_rows("no row: 1339", 1339);
}

}  // namespace zeph_bench
