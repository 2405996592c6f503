#include "rules.h"

namespace zeph_test {

Rules composition_rules() {
  return {};
}

}  // namespace zeph_test
