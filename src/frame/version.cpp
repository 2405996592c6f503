#include "zeph.h"

const char* Orbane::Zeph_Version_Info(void) {
  return "0003-20250729";
}
