#include "time/clock_text.h"

namespace zeph {

char* put_padded(char* to, int value, int width) {
  // On unsigned words, so that the lowest int has a magnitude too.
  unsigned magnitude = static_cast<unsigned>(value);
  if (value < 0) {
    magnitude = 0u - magnitude;
    *to++ = '-';
    --width;
  }
  char reversed[longest_field];
  int count = 0;
  do {
    reversed[count++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude > 0);
  while (count < width) reversed[count++] = '0';
  while (count > 0) *to++ = reversed[--count];
  return to;
}

}  // namespace zeph
