// Throughput of one thread and of two, each on texts of its own.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "bench.h"
#include "json.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

using Operation = std::function<void()>;

// A batch of calls, some microseconds long, so that looking for the end costs nothing.
template <typename Call>
Operation batch(std::size_t calls, Call call) {
  return [calls, call]() mutable {
    for (std::size_t i = 0; i < calls; ++i) benchmark::DoNotOptimize(call());
  };
}

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  return text;
}

struct Work {
  const char* name;
  Operation (*make)();
};

// "this machine" shares nothing at all: what two cores can be expected to give.
const Work works[] = {
    {"this machine",
     [] {
       return batch(1, [] {
         unsigned word = 1;
         for (int i = 0; i < 4000; ++i) benchmark::DoNotOptimize(word = word * 3 + 1);
         return word;
       });
     }},
    {"compare",
     [] {
       return batch(100, [a = prose(64), b = prose(64)] {
         return Orbane::Zeph_Compare_L(a.c_str(), b.c_str());
       });
     }},
    {"search",
     [] {
       return batch(20, [text = prose(1024)] {
         return Orbane::Zeph_Find_Position_L(text.c_str(), "pressed");
       });
     }},
    {"fields",
     [] {
       return batch(100, [text = std::string("12:30:05,CHAMBER,0.75"), a = std::string(64, ' '),
                          b = std::string(64, ' '), c = std::string(64, ' ')]() mutable {
         Orbane::Zeph_Seperate_Char(text.c_str(), ',', a.data(), b.data(), c.data(), 63);
         return a[0];
       });
     }},
    {"lists",
     [] {
       return batch(10, [text = std::string("alpha,beta,gamma,delta,epsilon")] {
         std::vector<std::string> items;
         Orbane::Zeph_Split(text, ',', items);
         return items.size();
       });
     }},
    {"numbers",
     [] {
       return batch(100, [text = std::string("-1234.5678")] {
         double value = 0;
         Orbane::Zeph_To_Double(text.c_str(), &value);
         return value;
       });
     }},
    {"rewriting",
     [] {
       return batch(10, [text = prose(256), work = std::string()]() mutable {
         work = text;
         Orbane::Zeph_Replace(work.data(), "Pressure", "P");
         return work[0];
       });
     }},
    {"dumps",
     [] {
       return batch(10, [text = prose(256), block = static_cast<char*>(nullptr)]() mutable {
         return Orbane::Zeph_To_Ascii(text.c_str(), 256, &block)[0];
       });
     }},
    {"code pages",
     [] {
       return batch(10, [text = std::string("\xCE\xC2\xB6\xC8\xB9\xFD\xB8\xDF: T1=85.5")] {
         return Orbane::Zeph_ANSI_to_UTF8(text.c_str()).size();
       });
     }},
    {"sealed texts",
     [] {
       return batch(20, [text = prose(256), record = std::string(320, ' ')]() mutable {
         return Orbane::Zeph_Encrypt(text.data(), record.data());
       });
     }},
};

// Batches a millisecond of so many threads at once.
double throughput(const Work& work, std::size_t count, std::chrono::milliseconds length) {
  std::atomic<bool> stop{false};
  std::vector<double> batches(count);
  std::vector<std::thread> threads;
  for (double& done : batches) {
    threads.emplace_back([&work, &stop, &done] {
      const Operation operation = work.make();
      double own = 0;
      for (; !stop.load(std::memory_order_relaxed); ++own) operation();
      done = own;
    });
  }
  const auto start = std::chrono::steady_clock::now();
  std::this_thread::sleep_for(length);
  stop = true;
  for (std::thread& thread : threads) thread.join();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  double sum = 0;
  for (const double done : batches) sum += done;
  return sum / took.count();
}

}  // namespace

int run_threads(const RunOptions& options) {
  const std::size_t rounds = options.quick ? 1 : 31;
  const std::chrono::milliseconds length(options.quick ? 5 : 20);
  const std::string path = options.json.empty() ? "/dev/null" : options.json;
  JsonFile json(path);
  if (!json.open()) return 1;
  // Round by round over all works, so that no work as a whole stands in a disturbance.
  std::vector<std::vector<double>> ratios(std::size(works));
  for (std::size_t round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < std::size(works); ++i) {
      const double one = throughput(works[i], 1, length);
      ratios[i].push_back(throughput(works[i], 2, length) / one);
    }
  }
  json.begin_list("threads");
  for (std::size_t i = 0; i < std::size(works); ++i) {
    std::sort(ratios[i].begin(), ratios[i].end());
    const double ratio = ratios[i][rounds / 2];
    std::printf("%-14s %5.2f times the throughput with two threads\n", works[i].name, ratio);
    json.begin_object();
    json.put("family", std::string(works[i].name));
    json.put("ratio", ratio);
    json.end_object();
  }
  json.end_list();
  return 0;
}

}  // namespace zeph_bench
