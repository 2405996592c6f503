// Message names of the form S1F13, by which the standard SECS-II (SEMI E5) names a message by its
// stream and its function.
#include <climits>
#include <cstring>

#include "number/integer_text.h"
#include "search/position.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr int largest_number = 255;

// Reads one of the two numbers: the `count` bytes from `start` on, by the grammar of integer text.
bool read_number(const char* text, int start, int count, int& number) {
  return read_integer_slice(text, start, count, number) && number >= 0 && number <= largest_number;
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Check_SxxFxx(const char* text, unsigned char* stream, unsigned char* function) {
  // Only the first byte can be the S: bytes ahead of it are refused, so that nothing more is read.
  if (zeph::find_position(text, {0, 1}, "S", zeph::CaseRule::ignored) != 0) return false;
  const int f = zeph::find_position(text, "F", zeph::CaseRule::ignored);
  if (f < 2) return false;
  const std::size_t behind = std::strlen(text + f + 1);
  if (behind == 0 || behind > INT_MAX) return false;
  int stream_number = 0, function_number = 0;
  if (!zeph::read_number(text, 1, f - 1, stream_number)) return false;
  if (!zeph::read_number(text, f + 1, static_cast<int>(behind), function_number)) return false;
  if (stream) *stream = static_cast<unsigned char>(stream_number);
  if (function) *function = static_cast<unsigned char>(function_number);
  return true;
}

}  // namespace Orbane
