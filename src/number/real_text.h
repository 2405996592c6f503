// Real-number text. Two judges look at a text: a test that counts bytes decides whether it is one,
// and a scan that reads from the start decides its value.
#ifndef ZEPH_NUMBER_REAL_TEXT_H
#define ZEPH_NUMBER_REAL_TEXT_H

namespace zeph {

// 0 if the text fails the test, 2 if it passes and holds exactly one '-', else 1.
int judge_real(const char* text);

// Stores what the scan reads in `count` bytes from `start` on, 0.0 if it reads nothing. False, with
// the value as it was, if they fail the test, or if a work buffer is refused, which is reported.
bool read_real_slice(const char* text, int start, int count, double& value);

// What the runtime's atof reads.
double leading_real(const char* text);

}  // namespace zeph

#endif  // ZEPH_NUMBER_REAL_TEXT_H
