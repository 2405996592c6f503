#include "rules.h"

namespace zeph_test {

Rules codepages_rules() {
  return {};
}

}  // namespace zeph_test
