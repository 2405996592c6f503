// Zeph explains the last error of the calling thread. Where the system has no such thing, Zeph asks
// a function of this name, if the host has one; this host answers with the code of its log.

#include "report.h"

namespace {
std::uint32_t code_of_log;
}

extern "C" std::uint32_t GetLastError() {
  return code_of_log;
}

const char* explain(std::uint32_t code) {
  code_of_log = code;
  return Orbane::Zeph_Get_SysErrMsg();
}
