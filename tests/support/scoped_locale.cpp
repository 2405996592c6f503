#include "support/scoped_locale.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace zeph_test {
namespace {

#ifdef _WIN32

// The runtime has all locales; its names are of another form.
bool make_locale(const std::string&, const std::string&, const std::string&) {
  return false;
}

#else

// Makes the locale with localedef and lets the runtime look for it. Tests that run side by side
// each make their own; the first one to be ready stays.
bool make_locale(const std::string& name, const std::string& language,
                 const std::string& encoding) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::path(ZEPH_LOCALES_DIR);
  const fs::path made = folder / name;
  std::error_code error;
  if (!fs::exists(made)) {
    const fs::path draft = folder / (name + "." + std::to_string(getpid()));
    fs::create_directories(folder, error);
    const std::string command = "localedef -c -i " + language + " -f " + encoding + " '" +
                                draft.string() + "' >/dev/null 2>&1";
    if (std::system(command.c_str()) == -1) return false;
    fs::rename(draft, made, error);
    fs::remove_all(draft, error);
  }
  setenv("LOCPATH", folder.c_str(), 1);
  return fs::exists(made);
}

#endif

}  // namespace

ScopedLocale::ScopedLocale(int category, const std::string& language, const std::string& encoding)
    : category_(category) {
  const std::string name = language + "." + encoding;
  if (std::setlocale(category, name.c_str())) return;
  if (make_locale(name, language, encoding) && std::setlocale(category, name.c_str())) return;
  reason_ = "no locale " + name + ": not installed, and localedef cannot make it";
}

ScopedLocale::~ScopedLocale() {
  std::setlocale(category_, "C");
}

}  // namespace zeph_test
