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

void make_locale(const std::string&, const std::string&, const std::string&) {}

#else

// Makes the locale with localedef and lets the runtime look for it. Tests that run side by side
// each make their own; the first one to be ready stays.
void make_locale(const std::string& name, const std::string& language,
                 const std::string& encoding) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::current_path() / "locales";
  const fs::path draft = folder / (name + "." + std::to_string(getpid()));
  setenv("LOCPATH", folder.c_str(), 1);
  if (fs::exists(folder / name)) return;
  std::error_code error;
  fs::create_directories(folder, error);
  const std::string options = "-c -i " + language + " -f " + encoding;
  const std::string command = "localedef " + options + " '" + draft.string() + "' >/dev/null 2>&1";
  if (std::system(command.c_str()) == -1) return;
  fs::rename(draft, folder / name, error);
  fs::remove_all(draft, error);
}

#endif

}  // namespace

ScopedLocale::ScopedLocale(int category, const std::string& language, const std::string& encoding)
    : category_(category) {
  const std::string name = language + "." + encoding;
  if (std::setlocale(category, name.c_str())) return;
  make_locale(name, language, encoding);
  if (std::setlocale(category, name.c_str())) return;
  reason_ = "no locale " + name + ": not installed, and localedef cannot make it";
}

ScopedLocale::~ScopedLocale() {
  std::setlocale(category_, "C");
}

}  // namespace zeph_test
