// zeph_bench [--quick] [--all-peers] [--family=NAME] [--rows=TEXT] [--rounds=N] [--threads]
//            [--only-zeph] [--json=FILE] [Google Benchmark's
// options]
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "bench.h"

namespace zeph_bench {

void register_blanks_rows();
void register_buffers_rows();
void register_cipher_rows();
void register_codepage_rows();
void register_compare_rows();
void register_compose_rows();
void register_dump_rows();
void register_enclosures_rows();
void register_fields_rows();
void register_growth_rows();
void register_indexed_rows();
void register_integer_rows();
void register_lists_rows();
void register_normalise_rows();
void register_real_print_rows();
void register_real_rows();
void register_reverse_rows();
void register_rewrite_rows();
void register_search_rows();
void register_slices_rows();
void register_syserror_rows();
void register_time_rows();

int run_threads(const RunOptions& options);

namespace {

struct Family {
  std::string_view name;
  void (*register_rows)();
};

// A family may have several files.
constexpr Family families[] = {
    {"buffers", register_buffers_rows},       {"cipher", register_cipher_rows},
    {"codepage", register_codepage_rows},     {"compare", register_compare_rows},
    {"compose", register_compose_rows},       {"dump", register_dump_rows},
    {"enclosures", register_enclosures_rows}, {"fields", register_fields_rows},
    {"growth", register_growth_rows},         {"indexed", register_indexed_rows},
    {"lists", register_lists_rows},           {"normalise", register_normalise_rows},
    {"normalise", register_blanks_rows},      {"number", register_integer_rows},
    {"number", register_real_rows},           {"number", register_real_print_rows},
    {"reverse", register_reverse_rows},       {"rewrite", register_rewrite_rows},
    {"search", register_search_rows},         {"slices", register_slices_rows},
    {"syserror", register_syserror_rows},     {"time", register_time_rows},
};

bool register_family(std::string_view name) {
  bool found = false;
  for (const Family& family : families) {
    if (family.name != name) continue;
    family.register_rows();
    found = true;
  }
  if (found) return true;
  std::fprintf(stderr, "no family %.*s; there are:", static_cast<int>(name.size()), name.data());
  for (const Family& family : families) std::fprintf(stderr, " %s", family.name.data());
  std::fputs("\n", stderr);
  return false;
}

}  // namespace
}  // namespace zeph_bench

int main(int argc, char** argv) {
  using zeph_bench::families;
  zeph_bench::RunOptions options;
  std::vector<char*> others(argv, argv + 1);
  bool chosen = false, threads = false;
  for (int i = 1; i < argc; ++i) {
    constexpr std::string_view family = "--family=", json = "--json=", rows = "--rows=",
                               rounds = "--rounds=";
    const std::string_view argument = argv[i];
    if (argument == "--quick") {
      options.quick = true;
    } else if (argument == "--all-peers") {
      options.all_peers = true;
    } else if (argument == "--only-zeph") {
      options.only_zeph = true;
    } else if (argument == "--threads") {
      threads = true;
    } else if (argument.substr(0, rows.size()) == rows) {
      options.rows = argument.substr(rows.size());
    } else if (argument.substr(0, rounds.size()) == rounds) {
      options.rounds = std::stoul(std::string(argument.substr(rounds.size())));
    } else if (argument.substr(0, json.size()) == json) {
      options.json = argument.substr(json.size());
    } else if (argument.substr(0, family.size()) == family) {
      if (!zeph_bench::register_family(argument.substr(family.size()))) return 1;
      chosen = true;
    } else {
      others.push_back(argv[i]);
    }
  }
  if (threads) return zeph_bench::run_threads(options);
  if (!chosen) {
    for (const auto& family : families) family.register_rows();
  }
  return zeph_bench::run(options, others);
}
