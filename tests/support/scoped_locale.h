// A locale for the length of a test: an installed one, or one that is made in the build folder.
//
//     const ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
//     if (!locale.in_force()) GTEST_SKIP() << locale.reason();
//
// Afterwards the category is in the "C" locale again.
#ifndef ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H
#define ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H

#include <clocale>
#include <string>

namespace zeph_test {

class ScopedLocale {
 public:
  ScopedLocale(int category, const std::string& language, const std::string& encoding);
  ~ScopedLocale();
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

  bool in_force() const {
    return reason_.empty();
  }
  const std::string& reason() const {
    return reason_;
  }

 private:
  int category_;
  std::string reason_;
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_SCOPED_LOCALE_H
