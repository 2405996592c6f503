// The little that Zeph asks of the operating system. Each system has one source file that defines
// these functions; nothing else in the library knows which system it is.
#ifndef ZEPH_PLATFORM_PLATFORM_H
#define ZEPH_PLATFORM_PLATFORM_H

#include <cstddef>
#include <cstdint>

namespace zeph {

// The fields of one instant on the local wall clock.
struct LocalTime {
  int year, month, day;  // month and day from 1
  int hour, minute, second, millisecond;
};

// All fields come from one reading of the clock. errno stays as it was.
LocalTime local_time();

// The last error code of the calling thread, in the numbering of Windows. It is only read.
std::uint32_t last_error();

// The answer of block_capacity() for a block that the heap does not know.
constexpr std::size_t unknown_block = static_cast<std::size_t>(-1);

// The size in bytes of a block of the runtime's heap, at least what was asked for.
std::size_t block_capacity(void* block);

// The error state of the calling thread: errno, and the system's own last error where it has one.
struct ErrorState {
  int errno_value;
  std::uint32_t system_error;
};

ErrorState error_state();
void restore_error_state(const ErrorState& state);

// Keeps the error state over a call that may change it.
class ErrorStateKeeper {
 public:
  ErrorStateKeeper() : state_(error_state()) {}
  ~ErrorStateKeeper() {
    restore_error_state(state_);
  }
  ErrorStateKeeper(const ErrorStateKeeper&) = delete;
  ErrorStateKeeper& operator=(const ErrorStateKeeper&) = delete;

 private:
  ErrorState state_;
};

}  // namespace zeph

#endif  // ZEPH_PLATFORM_PLATFORM_H
