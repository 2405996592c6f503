// How far a text is ASCII, bytes below 0x80. Nothing outside [text, end) is read.
#ifndef ZEPH_SCAN_ASCII_RUN_H
#define ZEPH_SCAN_ASCII_RUN_H

#include <cstddef>

namespace zeph {

// The length of the ASCII run at `text`.
std::size_t ascii_run(const char* text, const char* end);
std::size_t ascii_run_portable(const char* text, const char* end);

// How far a run may be copied in steps: the last step can fill this many bytes behind the run.
constexpr std::size_t ascii_step = 16;

// Copies the ASCII run at `text` and returns its length. `to` has room for the run and another
// ascii_step bytes; what stands in those afterwards is of no use.
std::size_t copy_ascii_run(char* to, const char* text, const char* end);
std::size_t copy_ascii_run_portable(char* to, const char* text, const char* end);

}  // namespace zeph

#endif  // ZEPH_SCAN_ASCII_RUN_H
