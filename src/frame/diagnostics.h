// The library's one diagnostic output.
#ifndef ZEPH_FRAME_DIAGNOSTICS_H
#define ZEPH_FRAME_DIAGNOSTICS_H

namespace zeph {

// Prints to standard output as printf does. Adds no line break and flushes nothing: the text
// reaches the stream's buffer, the rest is up to the host. errno stays as it was.
[[gnu::format(printf, 1, 2)]] void Diag_Print(const char* format, ...);

// Prints a report: a rule of 48 hyphens, the message, the rule again. These are three prints, so
// that another thread's output can fall between them, but no byte of ours does.
[[gnu::format(printf, 1, 2)]] void Diag_Banner(const char* format, ...);

}  // namespace zeph

#endif  // ZEPH_FRAME_DIAGNOSTICS_H
