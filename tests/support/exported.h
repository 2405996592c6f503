// The exported function itself. A direct call need not reach it, as the header gives compilers the
// first steps of a few.
#ifndef ZEPH_TESTS_SUPPORT_EXPORTED_H
#define ZEPH_TESTS_SUPPORT_EXPORTED_H

namespace zeph_test {

template <typename Function>
Function* exported(Function* function) {
  Function* volatile known = function;
  return known;
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_EXPORTED_H
