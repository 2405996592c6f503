// Zeph explains the last error of the calling thread, which is set to the code of the log first.

#include <windows.h>

#include "report.h"

const char* explain(std::uint32_t code) {
  SetLastError(code);
  return Orbane::Zeph_Get_SysErrMsg();
}
