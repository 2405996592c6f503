// zeph_soak CALLS: makes so many rounds of calls of all families in a random order, on texts of
// random lengths, and prints the slowest round of each that was not interrupted. Ends with 1 if the
// process takes more memory at the end than after the first tenth.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include "zeph.h"

namespace {

using namespace Orbane;

// Quick and good enough to mix calls (xorshift).
class Random {
 public:
  std::uint32_t below(std::uint32_t bound) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return static_cast<std::uint32_t>(state_ >> 32) % bound;
  }

 private:
  std::uint64_t state_ = 88172645463325252u;
};

// What the calls work on. Rooms are large enough for everything that is drawn.
struct Bench {
  Random random;
  char text[1024], other[1024], out[8][1024];
  char* block = nullptr;
  std::string string, second, third;
  std::vector<std::string> items;

  // Makes `text` one of up to 200 bytes, with separators, digits, letters and Chinese.
  void draw() {
    static const char letters[] = "AbcdEF019 ,;.-[]()\"/ \xB0\xA1\xCE\xC2";
    const std::uint32_t size = random.below(8) == 0 ? random.below(200) : random.below(24);
    for (std::uint32_t i = 0; i < size; ++i) text[i] = letters[random.below(sizeof letters - 1)];
    text[size] = '\0';
    std::memcpy(other, text, size + 1);
  }
};

struct Family {
  const char* name;
  void (*call)(Bench& b);
};

const Family families[] = {
    {"buffers",
     [](Bench& b) {
       Zeph_Copy_Mem(&b.block, b.text);
       if (b.random.below(4) == 0) Zeph_Release_Mem(&b.block);
       Zeph_Prepare_Mem(&b.block, 1 + static_cast<int>(b.random.below(300)));
     }},
    {"compare",
     [](Bench& b) { Zeph_Compare(b.text, b.other), Zeph_Compare_L(b.text, b.other, 9); }},
    {"case and blanks", [](Bench& b) { Zeph_Lower(b.text), Zeph_Trimed(b.text); }},
    {"search",
     [](Bench& b) { Zeph_Find_Position(b.text, "0,"), Zeph_Find_Position_L(b.text, "bCd"); }},
    {"slices",
     [](Bench& b) {
       b.string = b.text;
       Zeph_Right(b.string, ',', b.second);
       Zeph_Get_SubString(b.text, 3, 9, b.out[0]);
     }},
    {"fields",
     [](Bench& b) {
       Zeph_Seperate_Char(b.text, ',', b.out[0], b.out[1], b.out[2], 255);
       b.string = b.text;
       Zeph_Seperate(b.string, b.second, b.third, 63);
     }},
    {"lists",
     [](Bench& b) {
       b.string = b.text;
       b.items.clear();
       Zeph_Split(b.string, ';', b.items);
       Zeph_Join(b.items, '|', b.second);
       Zeph_Seperate_Get_Index(b.text, "0");
     }},
    {"numbers",
     [](Bench& b) {
       int number;
       double real;
       std::snprintf(b.text, sizeof b.text, "%d", static_cast<int>(b.random.below(1u << 31)));
       Zeph_To_Int(b.text, &number), Zeph_To_Double(b.text, &real, 1, 3);
       Zeph_Conv_Dbl_To_Str(real / 7, 3, b.out[0]);
     }},
    {"rewriting",
     [](Bench& b) {
       b.string = b.text;
       Zeph_Replace(b.text, "0", ""), Zeph_Replace(b.other, "b", "<c>");
       Zeph_Remove(b.string, ' ');
     }},
    {"composition",
     [](Bench& b) {
       Zeph_Cat(b.text, 7), Zeph_Cat(b.text, 0.5);
       b.string = Zeph_Splicing(300, "%s=%d", b.text, 42);
     }},
    {"dumps and names",
     [](Bench& b) {
       unsigned char stream, function;
       Zeph_To_Ascii(b.text, &b.block);
       Zeph_Check_SxxFxx("S6F11", &stream, &function);
     }},
    {"code pages",
     [](Bench& b) {
       b.string = Zeph_ANSI_to_UTF8(b.text), b.second = Zeph_UTF8_to_ANSI(b.string);
     }},
    {"sealed texts",
     [](Bench& b) { Zeph_Encrypt(b.text, b.out[0]), Zeph_Decrypt(b.out[0], b.out[1]); }},
    {"time and errors",
     [](Bench& b) {
       Zeph_Get_DateTime(), Zeph_Seconds_To_Time(b.random.below(100000));
       Zeph_Get_SysErrMsg();
     }},
};
constexpr std::size_t family_count = sizeof families / sizeof *families;

// Whether the system has taken the processor away since the last question: what it did meanwhile is
// no time of a call. Systems that do not tell are taken never to do so.
bool was_interrupted() {
#ifdef _WIN32
  return false;
#else
  static long before = 0;
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const long now = usage.ru_nivcsw + usage.ru_nvcsw;
  return now != std::exchange(before, now);
#endif
}

// The memory of the process in KiB; 0 where the system does not show it in this way.
long resident() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return 4 * pages;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("zeph_soak CALLS\n", stderr);
    return 2;
  }
  const long calls = std::strtol(argv[1], nullptr, 10);
  static Bench bench;
  using Clock = std::chrono::steady_clock;
  Clock::duration slowest[family_count] = {};
  long made[family_count] = {}, early = 0;
  for (long i = 0; i < calls; ++i) {
    const std::size_t which = bench.random.below(family_count);
    bench.draw();
    const Clock::time_point start = Clock::now();
    families[which].call(bench);
    const Clock::duration took = Clock::now() - start;
    if (took > slowest[which] && !was_interrupted()) slowest[which] = took;
    ++made[which];
    if (i == calls / 10) early = resident();
  }
  Zeph_Release_Mem(&bench.block);
  for (std::size_t i = 0; i < family_count; ++i) {
    const std::chrono::duration<double, std::micro> time = slowest[i];
    std::printf("%-16s %10ld rounds, the slowest %9.1f us\n", families[i].name, made[i],
                time.count());
  }
  const long late = resident();
  std::printf("memory: %ld KiB after a tenth, %ld KiB at the end\n", early, late);
  return late > early + 256 ? 1 : 0;
}
