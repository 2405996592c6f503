// Paired measurements: a row is one operation on one input, done by Zeph and by each of its peers.
//
//     void register_compare_rows() {
//       auto& texts = keep(Pair{...});
//       row("compare", "Zeph_Compare", "64 bytes", 64)
//           .zeph([&texts] { return Orbane::Zeph_Compare(texts.a, texts.b); })
//           .peer("strcmp", [&texts] { return std::strcmp(texts.a, texts.b) == 0; });
//     }
//
// Before anything is timed, each peer's answer is held against Zeph's. The answer is what the
// operation returned, or, where outputs() was given, the text that it makes of the outputs. An
// operation is stored by value and runs later, so it may refer to nothing but what keep() holds.
#ifndef ZEPH_BENCH_BENCH_H
#define ZEPH_BENCH_BENCH_H

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zeph_bench {

// What a timing stands for in its row.
enum class Kind {
  zeph,
  peer,
  limit,     // what the machine needs at least for as many bytes
  requests,  // the heap requests that the operation promises, alone
};

// One timed operation and the process time of a call in nanoseconds, once for each round.
struct Timing {
  Kind kind;
  std::string who;      // "Zeph", the peer's name, or that of the limit
  std::string differs;  // why a peer's answer is another one by nature
  std::string name;     // by which the measurement is known
  std::function<void(benchmark::State&)> loop;
  std::vector<double> rounds;
  benchmark::IterationCount calls = 0;  // in a round: the most that one has found
};

// An answer as a text, for the comparison and for the message about a wrong one.
std::string answer_text(std::string_view answer);
std::string answer_text(double answer);
template <typename Integer, typename = std::enable_if_t<std::is_integral_v<Integer>>>
std::string answer_text(Integer answer) {
  return std::to_string(answer);
}

std::string answer_text(const std::vector<std::string>& answer);

class Row {
 public:
  Row(std::string family, std::string operation, std::string input, std::size_t bytes);

  // How the outputs of the operations are read, if their result alone is not the answer. It should
  // also spoil the outputs, so that a peer that writes nothing is found out. Stands before zeph().
  Row& outputs(std::function<std::string()> read);

  template <typename Operation>
  Row& zeph(Operation operation) {
    expected_ = answer(operation);
    return time(Kind::zeph, "Zeph", std::move(operation));
  }

  // `differs` tells why this peer's answer is another one by nature; it is printed, and the answer
  // is not compared.
  template <typename Operation>
  Row& peer(const char* name, Operation operation, const char* differs = nullptr) {
    check(name, answer(operation), differs);
    return time(Kind::peer, name, std::move(operation), differs);
  }

  // What no implementation on this machine can do without, such as the fetching of the bytes.
  template <typename Operation>
  Row& limit(const char* name, Operation operation) {
    return time(Kind::limit, name, std::move(operation));
  }

  // The heap requests that Zeph's operation has promised to make. The row is then judged against
  // the peer and these.
  template <typename Operation>
  Row& requests(Operation operation) {
    return time(Kind::requests, "requests", std::move(operation));
  }

  // A peer that this build does not have.
  Row& missing_peer(const char* name);

  // Why the row may be behind, where it is not the default: a peer that is compiled into its
  // caller, for this one use, needs no call.
  Row& reason(std::string text);

  // A remark that is printed below the table.
  Row& note(const std::string& text);

  // No row of the table, but a point of a curve: how the time grows with the text. Stands first.
  Row& point_of_growth();
  bool is_point_of_growth() const {
    return growth_;
  }

  const std::string& family() const {
    return family_;
  }
  const std::string& operation() const {
    return operation_;
  }
  const std::string& input() const {
    return input_;
  }
  std::size_t bytes() const {
    return bytes_;
  }
  const std::string& reason() const {
    return reason_;
  }
  const std::vector<std::unique_ptr<Timing>>& timings() const {
    return timings_;
  }

 private:
  template <typename Operation>
  std::string answer(Operation& operation) {
    const auto result = operation();
    if (outputs_) return outputs_();
    if constexpr (std::is_pointer_v<decltype(result)> &&
                  !std::is_convertible_v<decltype(result), std::string_view>) {
      return answer_text(result != nullptr);
    } else {
      return answer_text(result);
    }
  }

  template <typename Operation>
  Row& time(Kind kind, const char* who, Operation operation, const char* differs = nullptr) {
    add_timing(kind, who, differs, [operation](benchmark::State& state) {
      Operation call = operation;  // a local, so that the loop has what it refers to in registers
      benchmark::DoNotOptimize(call());  // whoever comes first would else meet the cold cache
      for (auto _ : state) benchmark::DoNotOptimize(call());
    });
    return *this;
  }

  void add_timing(Kind kind, const char* who, const char* differs,
                  std::function<void(benchmark::State&)> loop);
  void check(const char* who, const std::string& answer, const char* differs);

  std::string family_, operation_, input_;
  std::size_t bytes_;
  std::function<std::string()> outputs_;
  std::string expected_;
  std::string reason_ =
      "a call into the shared library, beside a peer that is compiled into its caller for this one "
      "use";
  bool growth_ = false;
  std::vector<std::unique_ptr<Timing>> timings_;
};

// Asks the heap for so many zero-filled blocks, as work buffers are, and gives them back.
int heap_requests(std::size_t count, std::size_t size);

// The text in a room, which is spoiled.
std::string take(char* room);

// "64 bytes", "4 KiB", "1 MiB".
std::string size_text(std::size_t size);

// A new row. `bytes` is what one call works through, for the throughput column.
Row& row(const char* family, std::string operation, std::string input, std::size_t bytes);

// Holds what the operations work on until the program ends, from a cache line on: what stands
// inside of a fixture lies at the same place of its lines in every run.
template <typename Fixture>
Fixture& keep(Fixture fixture) {
  struct alignas(64) Kept {
    Fixture fixture;
  };
  static std::vector<std::unique_ptr<Kept>> kept;
  kept.push_back(std::unique_ptr<Kept>(new Kept{std::move(fixture)}));
  return kept.back()->fixture;
}

// The byte texts and output rooms of one fixture, at places that the heap does not decide; else a
// figure would tell of them. Each starts on a cache line. A later one starts lower in its page than
// those before it, so that what is read ahead of a store never has its address in the low 12 bits:
// the inputs come first, then the outputs. Seven find a place of their own.
class Places {
 public:
  // `text` and a terminator, in a room of at least `room` bytes.
  char* text(std::string_view text, std::size_t room = 0);
  // Zero bytes.
  char* room(std::size_t size);

 private:
  struct Free {
    void operator()(char* block) const;
  };
  std::vector<std::unique_ptr<char, Free>> blocks_;
};

// Times all rows and prints the table. `arguments` are Google Benchmark's own options. Returns the
// exit status: 1 if any answer was wrong.
struct RunOptions {
  bool quick = false;      // a few rounds, to see that everything runs
  bool all_peers = false;  // a line for each peer, not only for the best one
  bool only_zeph = false;  // without peers, to compare two builds of the library
  std::size_t rounds = 15;
  std::string rows;  // only rows whose operation and input, "Zeph_Lower, 64 bytes", contain this
  std::string json;  // a file for all figures, as JSON
};
int run(const RunOptions& options, std::vector<char*> arguments);

}  // namespace zeph_bench

#endif  // ZEPH_BENCH_BENCH_H
