// Strings made of a piece of another text. The runtime's own ways take two calls, which is more
// than a short piece costs.
#ifndef ZEPH_FRAME_STRING_PIECES_H
#define ZEPH_FRAME_STRING_PIECES_H

#include <cstddef>
#include <cstring>
#include <string>

#include "scan/byte_mask.h"
#include "scan/move_bytes.h"

namespace zeph {

// The first place of a byte, or npos. In a short text no more than the text is looked at, not even
// by lanes that are switched off: what stands behind it is often a String that was just written,
// and a load over both has to wait for that.
inline std::size_t place_of(const std::string& text, char byte) {
  const char* const begin = text.data();
  if (text.size() <= mask_bytes) {
    const std::uint64_t places = byte_mask(begin, text.size(), byte);
    return places == 0 ? std::string::npos : lowest_place(places);
  }
  const void* const at = std::memchr(begin, byte, text.size());
  return at ? static_cast<std::size_t>(static_cast<const char*>(at) - begin) : std::string::npos;
}

// Replaces `out`, which the piece may be part of. One that is as long already, as it is where a
// caller uses it again and again, is overwritten.
[[gnu::noinline]] inline void put_string(std::string& out, const char* from, std::size_t size) {
  if (size > out.size()) {
    out.assign(from, size);
    return;
  }
  move_bytes(&out[0], from, size);
  out.erase(size);
}

// The most that every runtime keeps in the object itself, which costs nothing to make.
constexpr std::size_t most_in_object = 15;

inline std::string make_short_string(const char* from, std::size_t size) {
  std::string piece("               ", most_in_object);
  piece.erase(size);
  move_bytes(&piece[0], from, size);
  return piece;
}

inline std::string make_string(const char* from, std::size_t size) {
  return size > most_in_object ? std::string(from, size) : make_short_string(from, size);
}

}  // namespace zeph

#endif  // ZEPH_FRAME_STRING_PIECES_H
