#include "support/stdout_capture.h"

#include <stdexcept>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace zeph_test {

namespace {

std::mutex capturing;

}  // namespace

StdoutCapture::StdoutCapture() : alone_(capturing), original_(dup(1)), file_(std::tmpfile()) {
  if (original_ < 0 || !file_) throw std::runtime_error("standard output cannot be captured");
  std::fflush(stdout);
  dup2(fileno(file_), 1);
}

StdoutCapture::~StdoutCapture() {
  std::fflush(stdout);
  dup2(original_, 1);
  close(original_);
  std::fclose(file_);
}

std::string StdoutCapture::text() {
  std::fflush(stdout);
  std::rewind(file_);
  std::string printed;
  char piece[256];
  while (const std::size_t n = std::fread(piece, 1, sizeof piece, file_)) printed.append(piece, n);
  return printed;
}

std::string banner(const std::string& message) {
  const std::string rule(48, '-');
  return rule + message + rule;
}

std::string banners(long count, const std::string& message) {
  std::string all;
  for (long i = 0; i < count; ++i) all += banner(message);
  return all;
}

}  // namespace zeph_test
