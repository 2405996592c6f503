// A locale for the length of a test, out of those that the build has made with localedef.
//
//     const ScopedLocale locale(LC_NUMERIC, "de_DE.UTF-8");
//     if (!locale.in_force()) GTEST_SKIP() << "no locale de_DE.UTF-8";
//
// Afterwards the category is in the "C" locale again.
#ifndef ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H
#define ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H

#include <clocale>
#include <cstdlib>

namespace zeph_test {

class ScopedLocale {
 public:
  ScopedLocale(int category, const char* name) : category_(category) {
#ifndef _WIN32
    setenv("LOCPATH", ZEPH_LOCALES_DIR, 1);
#endif
    in_force_ = std::setlocale(category, name) != nullptr;
  }
  ~ScopedLocale() {
    std::setlocale(category_, "C");
  }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

  bool in_force() const {
    return in_force_;
  }

 private:
  int category_;
  bool in_force_;
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H
