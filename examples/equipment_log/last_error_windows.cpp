// Zeph explains the last error of the calling thread, which is set to the code of the log first.

#include "report.h"

// Behind the standard headers, which its macros min and max would break.
#include <windows.h>

const char* explain(std::uint32_t code) {
  SetLastError(code);
  return Orbane::Zeph_Get_SysErrMsg();
}
