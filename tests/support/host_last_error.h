// The host's side of the system's last error. A program that links this is a host that was ported
// from Windows: on other systems it defines the function GetLastError that such a host brings
// along.
#ifndef ZEPH_TESTS_SUPPORT_HOST_LAST_ERROR_H
#define ZEPH_TESTS_SUPPORT_HOST_LAST_ERROR_H

#include <cstdint>

namespace zeph_test {

void set_last_error(std::uint32_t code);
std::uint32_t get_last_error();

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_HOST_LAST_ERROR_H
