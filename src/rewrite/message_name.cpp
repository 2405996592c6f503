// Message names of the form S1F13, by which the standard SECS-II (SEMI E5) names a message by its
// stream and its function.
#include <climits>

#include "frame/locale_fold.h"
#include "number/integer_text.h"
#include "scan/short_length.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr int largest_number = 255;

// The first byte that folds to `folded`, or the terminator.
const char* find_folded(const char* text, char folded, const LocaleFold& fold) {
  while (*text != '\0' && fold(*text) != folded) ++text;
  return text;
}

// Reads one of the two numbers, whose size is an int, by the grammar of integer text.
bool read_number(const char* begin, const char* end, int& number) {
  return read_integer_slice(begin, 0, static_cast<int>(end - begin), number) && number >= 0 &&
         number <= largest_number;
}

}  // namespace
}  // namespace zeph

namespace Orbane {

bool Zeph_Check_SxxFxx(const char* text, unsigned char* stream, unsigned char* function) {
  const zeph::LocaleFold fold(zeph::LetterCase::lower);
  if (fold(*text) != fold('S')) return false;
  const char* const f = zeph::find_folded(text + 1, fold('F'), fold);
  if (*f == '\0' || f - text < 2) return false;
  const std::size_t behind = zeph::short_length(f + 1);
  if (behind == 0 || behind > INT_MAX || f - text > INT_MAX) return false;
  int stream_number = 0, function_number = 0;
  if (!zeph::read_number(text + 1, f, stream_number)) return false;
  if (!zeph::read_number(f + 1, f + 1 + behind, function_number)) return false;
  if (stream) *stream = static_cast<unsigned char>(stream_number);
  if (function) *function = static_cast<unsigned char>(function_number);
  return true;
}

}  // namespace Orbane
