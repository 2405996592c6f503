#include "bench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <unordered_map>

#include "json.h"

namespace zeph_bench {
namespace {

// What a whole run knows. It is filled while the rows are registered.
struct Session {
  std::vector<std::unique_ptr<Row>> rows;
  std::unordered_map<std::string, Timing*> timings;  // by the name that the benchmark carries
  std::vector<std::string> remarks;
  bool wrong = false;
};

Session& session() {
  static Session the_session;
  return the_session;
}

// Takes in the rounds and prints nothing: the table comes when all of them are there.
class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override {
    return true;
  }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& one : runs) {
      if (one.run_type != Run::RT_Iteration || one.iterations == 0) continue;
      const auto found = session().timings.find(one.run_name.function_name);
      if (found == session().timings.end()) continue;
      const double seconds = one.cpu_accumulated_time / static_cast<double>(one.iterations);
      found->second->rounds.push_back(seconds * 1e9);
      found->second->calls = std::max(found->second->calls, one.iterations);
    }
  }
};

double median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

constexpr double slow = 0.8;

const Timing* timing_of(const Row& row, Kind kind) {
  for (const auto& timing : row.timings()) {
    if (timing->kind == kind) return timing.get();
  }
  return nullptr;
}

// The median of the ratios of the rounds: what a round compares ran within milliseconds, in the
// same state of the machine. Promised requests are added to the peer.
double ratio_to(const Row& row, const Timing& peer) {
  const Timing& zeph = *timing_of(row, Kind::zeph);
  const Timing* const requests = timing_of(row, Kind::requests);
  std::vector<double> ratios;
  for (std::size_t i = 0; i < peer.rounds.size(); ++i) {
    ratios.push_back((peer.rounds[i] + (requests ? requests->rounds[i] : 0)) / zeph.rounds[i]);
  }
  return median(std::move(ratios));
}

// Returns whether the row was timed and is below the mark.
bool print_row(const Row& row, bool all_peers) {
  const Timing* const zeph = timing_of(row, Kind::zeph);
  if (!zeph || zeph->rounds.empty()) return false;
  const bool requests = timing_of(row, Kind::requests) != nullptr;
  std::vector<std::pair<double, const Timing*>> peers;
  for (const auto& timing : row.timings()) {
    if (timing->kind != Kind::peer || timing->rounds.empty()) continue;
    peers.emplace_back(ratio_to(row, *timing), timing.get());
  }
  if (peers.empty()) return false;
  std::sort(peers.begin(), peers.end());
  if (!all_peers) peers.resize(1);
  for (const auto& [ratio, peer] : peers) {
    const double time = median(zeph->rounds);
    const std::string name = peer->who + (requests ? " + requests" : "");
    std::printf("%-10s %-36s %-32s %9.2f %7.2f   %-36s %9.2f %6.2f%s\n", row.family().c_str(),
                row.operation().c_str(), row.input().c_str(), time,
                static_cast<double>(row.bytes()) / time, name.c_str(), median(peer->rounds), ratio,
                ratio < slow ? "  < 0.8" : "");
  }
  return peers[0].first < slow;
}

void print_table(bool all_peers) {
  std::printf("%-10s %-36s %-32s %9s %7s   %-36s %9s %6s\n", "family", "operation", "input",
              "Zeph ns", "GB/s", all_peers ? "peer" : "best peer", "ns", "ratio");
  std::size_t below = 0;
  for (const auto& row : session().rows) {
    if (!print_row(*row, all_peers)) continue;
    ++below;
    if (!row->reason().empty()) row->note("below the mark: " + row->reason());
  }
  std::printf(
      "\n%zu rows, %zu below %.1f. ratio = peer's time / Zeph's time; above 1 Zeph is faster."
      "\n",
      session().rows.size(), below, slow);
  for (const std::string& remark : session().remarks) std::printf("- %s\n", remark.c_str());
}

const char* kind_name(Kind kind) {
  const char* const names[] = {"zeph", "peer", "limit", "requests"};
  return names[static_cast<int>(kind)];
}

// All medians, for a report that is made elsewhere.
bool write_json(const std::string& path, std::size_t rounds) {
  JsonFile json(path);
  if (!json.open()) return false;
  json.put("rounds", static_cast<double>(rounds));
  json.begin_list("rows");
  for (const auto& row : session().rows) {
    json.begin_object();
    json.put("growth", row->is_point_of_growth() ? 1 : 0);
    json.put("family", row->family());
    json.put("operation", row->operation());
    json.put("input", row->input());
    json.put("bytes", static_cast<double>(row->bytes()));
    json.put("reason", row->reason());
    json.begin_list("timings");
    for (const auto& timing : row->timings()) {
      if (timing->rounds.empty()) continue;
      json.begin_object();
      json.put("kind", kind_name(timing->kind));
      json.put("who", timing->who);
      json.put("differs", timing->differs);
      json.put("ns", median(timing->rounds));
      if (timing->kind == Kind::peer) json.put("ratio", ratio_to(*row, *timing));
      json.end_object();
    }
    json.end_list();
    json.end_object();
  }
  json.end_list();
  return true;
}

}  // namespace

std::string answer_text(std::string_view answer) {
  return std::string(answer);
}

std::string answer_text(const std::vector<std::string>& answer) {
  std::string text;
  for (const std::string& item : answer) text += item + '\n';
  return text;
}

std::string answer_text(double answer) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%a", answer);
  return digits;
}

Row::Row(std::string family, std::string operation, std::string input, std::size_t bytes)
    : family_(std::move(family)),
      operation_(std::move(operation)),
      input_(std::move(input)),
      bytes_(bytes) {}

Row& Row::outputs(std::function<std::string()> read) {
  outputs_ = std::move(read);
  return *this;
}

Row& Row::point_of_growth() {
  growth_ = true;
  return *this;
}

Row& Row::missing_peer(const char* name) {
  const std::string remark = family_ + ": " + name + " is not in this build, its rows are left out";
  std::vector<std::string>& remarks = session().remarks;
  if (std::find(remarks.begin(), remarks.end(), remark) == remarks.end()) {
    remarks.push_back(remark);
  }
  return *this;
}

Row& Row::reason(std::string text) {
  reason_ = std::move(text);
  return *this;
}

Row& Row::note(const std::string& text) {
  session().remarks.push_back(operation_ + ", " + input_ + ": " + text);
  return *this;
}

void Row::add_timing(Kind kind, const char* who, const char* differs,
                     std::function<void(benchmark::State&)> loop) {
  const std::string name =
      (growth_ ? "growth: " : "") + family_ + ": " + operation_ + ": " + input_ + ": " + who;
  auto made = std::make_unique<Timing>();
  made->kind = kind;
  made->who = who;
  made->differs = differs ? differs : "";
  made->name = name;
  made->loop = std::move(loop);
  timings_.push_back(std::move(made));
  if (!session().timings.emplace(name, timings_.back().get()).second) {
    std::fprintf(stderr, "two timings are named %s\n", name.c_str());
    session().wrong = true;
  }
}

void Row::check(const char* who, const std::string& answer, const char* differs) {
  if (differs) {
    note(std::string(who) + " differs by nature: " + differs);
    return;
  }
  if (answer == expected_) return;
  std::fprintf(stderr, "%s, %s, %s: Zeph gives [%.200s], %s gives [%.200s]\n", family_.c_str(),
               operation_.c_str(), input_.c_str(), expected_.c_str(), who, answer.c_str());
  session().wrong = true;
}

int heap_requests(std::size_t count, std::size_t size) {
  void* blocks[8];
  for (std::size_t i = 0; i < count; ++i) blocks[i] = std::calloc(size, 1);
  benchmark::DoNotOptimize(blocks);
  for (std::size_t i = 0; i < count; ++i) std::free(blocks[i]);
  return 0;
}

std::string size_text(std::size_t size) {
  if (size < 1024) return std::to_string(size) + " bytes";
  if (size < 1048576) return std::to_string(size / 1024) + " KiB";
  return std::to_string(size / 1048576) + " MiB";
}

Row& row(const char* family, std::string operation, std::string input, std::size_t bytes) {
  auto& rows = session().rows;
  rows.push_back(std::make_unique<Row>(family, std::move(operation), std::move(input), bytes));
  return *rows.back();
}

namespace {

// One round of one row. Its timings alone are known to Google Benchmark meanwhile, which compares
// all names that it knows with the wanted ones. How many calls a round takes is found in the first
// three: a disturbance in one of them alone would leave all others with too few.
void time_row(const Row& row, const RunOptions& options, Collector& collector) {
  benchmark::ClearRegisteredBenchmarks();
  for (const auto& timing : row.timings()) {
    if (options.only_zeph && timing->kind != Kind::zeph) continue;
    auto* const added = benchmark::RegisterBenchmark(timing->name.c_str(), timing->loop);
    if (timing->rounds.size() >= 3) added->Iterations(timing->calls);
  }
  benchmark::RunSpecifiedBenchmarks(&collector, ".");
}

}  // namespace

int run(const RunOptions& options, std::vector<char*> arguments) {
  if (session().wrong) return 1;
  std::string round_time =
      "--benchmark_min_time=" + std::string(options.quick ? "0.0002" : "0.0015");
  arguments.insert(arguments.begin() + 1, round_time.data());
  auto count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

  std::vector<const Row*> order;
  for (const auto& row : session().rows) {
    const std::string name = row->operation() + ", " + row->input();
    if (name.find(options.rows) != std::string::npos) order.push_back(row.get());
  }
  // A round takes the rows in an order of its own, so that no row stands in a disturbance each
  // time.
  std::mt19937 random(1);
  const std::size_t rounds = options.quick ? 3 : options.rounds;
  Collector collector;
  for (std::size_t round = 0; round < rounds; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const Row* const row : order) time_row(*row, options, collector);
  }
  print_table(options.all_peers);
  if (options.json.empty() || write_json(options.json, rounds)) return 0;
  std::fprintf(stderr, "%s cannot be written\n", options.json.c_str());
  return 1;
}

}  // namespace zeph_bench
