#include "rules.h"

namespace zeph_test {

Rules buffers_rules() {
  return {};
}

}  // namespace zeph_test
