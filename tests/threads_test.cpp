// Eight threads over all functions that may run at once: every rule of every family. The sealed
// texts share one key and the functions that return a buffer of their own share that buffer: each
// of these is called by one of the threads, at the same time as all others.
#include <thread>

#include "rules.h"

using namespace zeph_test;

namespace {

const char* (*const with_a_buffer[])() = {
    Orbane::Zeph_Get_Date,
    Orbane::Zeph_Get_Time,
    Orbane::Zeph_Get_Time2,
    Orbane::Zeph_Get_DateTime,
    Orbane::Zeph_Get_DateTime2,
    Orbane::Zeph_Get_SysErrMsg,
    [] { return Orbane::Zeph_Seconds_To_Time(90061.25); },
    [] { return Orbane::Zeph_Seconds_To_Time2(90061.25); },
};

void run(unsigned thread) {
  for (const Family* family : families) {
    if (family == &records_family && thread != 0) continue;
    for (const auto rule : family->rules) {
      for (unsigned seed = 1; seed <= 300; ++seed) {
        Draw draw(1000 * thread + seed);
        rule(draw);
        EXPECT_GE(std::strlen(with_a_buffer[thread]()), 8U);
        EXPECT_STREQ(Orbane::Zeph_Version_Info(), "0003-20250729");
      }
    }
  }
}

}  // namespace

TEST(Threads, RunAllFamiliesAtOnce) {
  std::vector<std::thread> threads;
  for (unsigned i = 0; i < 8; ++i) threads.emplace_back(run, i);
  for (std::thread& thread : threads) thread.join();
}
