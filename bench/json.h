// Writes one object as JSON, in the order of the calls.
#ifndef ZEPH_BENCH_JSON_H
#define ZEPH_BENCH_JSON_H

#include <cstdio>
#include <string>

namespace zeph_bench {

class JsonFile {
 public:
  explicit JsonFile(const std::string& path) : file_(std::fopen(path.c_str(), "w")) {
    if (file_) std::fputc('{', file_);
  }
  ~JsonFile() {
    if (!file_) return;
    std::fputs("}\n", file_);
    std::fclose(file_);
  }
  JsonFile(const JsonFile&) = delete;
  JsonFile& operator=(const JsonFile&) = delete;

  bool open() const {
    return file_ != nullptr;
  }
  void put(const char* name, double value) {
    key(name);
    std::fprintf(file_, "%.17g", value);
  }
  void put(const char* name, const std::string& value) {
    key(name);
    std::fputc('"', file_);
    for (const char byte : value) {
      if (byte == '"' || byte == '\\') std::fputc('\\', file_);
      std::fputc(byte, file_);
    }
    std::fputc('"', file_);
  }
  void begin_list(const char* name) {
    key(name);
    begin('[');
  }
  void end_list() {
    end(']');
  }
  void begin_object() {
    separate();
    begin('{');
  }
  void end_object() {
    end('}');
  }

 private:
  void separate() {
    if (!first_) std::fputc(',', file_);
    first_ = false;
  }
  void key(const char* name) {
    separate();
    std::fprintf(file_, "\n\"%s\": ", name);
  }
  void begin(char bracket) {
    std::fputc(bracket, file_);
    first_ = true;
  }
  void end(char bracket) {
    std::fputc(bracket, file_);
    first_ = false;
  }

  std::FILE* file_;
  bool first_ = true;
};

}  // namespace zeph_bench

#endif  // ZEPH_BENCH_JSON_H
