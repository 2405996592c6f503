// What a call under a refusing heap came to, as a text.
#ifndef ZEPH_TESTS_SUPPORT_OUTCOME_H
#define ZEPH_TESTS_SUPPORT_OUTCOME_H

#include <string>

#include "support/refusing_heap.h"
#include "zeph.h"

namespace zeph_test {

// The parts as one text, made with a heap that refuses no more.
template <typename... Parts>
std::string shown(const Parts&... parts) {
  RefusingHeap::refuse_no_more();
  std::string text;
  ((text += parts, text += '|'), ...);
  return text;
}

// An owned buffer that ends with its scope.
struct Owned {
  char* block = nullptr;
  explicit Owned(const char* held = nullptr) {
    if (held) Orbane::Zeph_Copy_Mem(&block, held);
  }
  ~Owned() {
    Orbane::Zeph_Release_Mem(&block);
  }
  std::string text() const {
    return block ? block : "NULL";
  }
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_OUTCOME_H
