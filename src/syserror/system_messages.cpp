#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/put_integer.h"
#include "platform/platform.h"
#include "syserror/message_table.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr std::size_t result_size = 512;

// "系统错误码:[" in code page 936.
constexpr char fallback_start[] = "\317\265\315\263\264\355\316\363\302\353:[";
static_assert(sizeof fallback_start + sizeof "-2147483648]" <= result_size);

// The answer for a code without a row; the code shows as a signed number.
void put_fallback(char* out, std::uint32_t code) {
  std::memcpy(out, fallback_start, sizeof fallback_start - 1);
  char* const digits = out + sizeof fallback_start - 1;
  *put_integer(digits, static_cast<std::int32_t>(code)) = ']';
}

// Writes the message of `code` to `out`, which holds zero bytes.
void put_message(char* out, std::uint32_t code) {
  if (code > highest_message_code) return put_fallback(out, code);
  const std::size_t start = message_starts[code];
  const std::size_t length = message_starts[code + 1] - start;
  if (length == 0) return put_fallback(out, code);
  std::memcpy(out, message_texts + start, length);
}

}  // namespace
}  // namespace zeph

const char* Orbane::Zeph_Get_SysErrMsg() {
  static char result[zeph::result_size];
  std::memset(result, 0, sizeof result);
  zeph::put_message(result, zeph::last_error());
  return result;
}
