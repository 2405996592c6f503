// zeph_load_time LIBRARY FUNCTION: the nanoseconds from before dlopen to behind the first call of a
// function without arguments. A process is good for one figure.
#include <dlfcn.h>

#include <chrono>
#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto start = std::chrono::steady_clock::now();
  void* const library = dlopen(argv[1], RTLD_NOW);
  void* const symbol = library ? dlsym(library, argv[2]) : nullptr;
  if (!symbol) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  const char* (*function)() = nullptr;
  std::memcpy(&function, &symbol, sizeof function);
  const char* const result = function();
  const std::chrono::nanoseconds took = std::chrono::steady_clock::now() - start;
  std::printf("%lld\n", static_cast<long long>(took.count()));
  return result ? 0 : 1;
}
