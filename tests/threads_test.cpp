// Eight threads over all functions that may run at once: every rule of every family but the sealed
// texts, which share one key. The other exceptions are the functions that return a buffer of their
// own, and no rule calls them. A checker of races watches where there is one.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "rules.h"

using namespace zeph_test;

TEST(Threads, RunAllFamiliesAtOnce) {
  std::vector<std::thread> threads;
  for (unsigned thread = 0; thread < 8; ++thread) {
    threads.emplace_back([thread] {
      for (const Family& family : families) {
        if (family.rules == records_rules) continue;
        for (const Rule& rule : family.rules()) {
          for (unsigned seed = 1; seed <= 300; ++seed) {
            Draw draw(1000 * thread + seed);
            rule.check(draw);
          }
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}
