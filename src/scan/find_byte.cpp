#include "scan/find_byte.h"

namespace zeph {

const char* find_byte_or_end(const char* text, char byte, std::size_t most,
                             [[maybe_unused]] std::size_t near) {
#ifdef ZEPH_HAS_STRCHRNUL
  // The length first, so that every byte is known to be there and the runtime's wide search may
  // run; in growing pieces, so that a near byte does not cost a walk to a far end.
  for (std::size_t piece = near;; piece *= 4) {
    const std::size_t here = strnlen(text, most < piece ? most : piece);
    const void* const found = std::memchr(text, byte, here);
    if (found) return static_cast<const char*>(found);
    text += here;
    most -= here;
    if (most == 0 || here < piece) return text;
  }
#else
  const char* const end = text + most;
  while (text != end && *text != byte && *text != '\0') ++text;
  return text;
#endif
}

}  // namespace zeph
