// The rename benchmarks. Besides Google Benchmark's own flags:
//   --write-names=FILE           write the benchmark names to FILE as UTF-8, one a line, and stop
//   --sed-names-per-second=RATE  GNU sed's speed over that file, to show beside ours
#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <fstream>
#include <optional>
#include <string_view>
#include <vector>

#include "layer_names.h"
#include "rename_benchmarks.h"
#include "summary_reporter.h"

namespace {

std::optional<std::string_view> flag_value(std::string_view argument, std::string_view flag) {
  if (!argument.starts_with(flag)) return std::nullopt;
  return argument.substr(flag.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::optional<std::string_view> names_file;
  std::optional<double> sed_names_per_second;
  std::vector<char*> rest{argv[0]};
  for (int i = 1; i < argc; ++i) {
    if (const auto file = flag_value(argv[i], "--write-names=")) {
      names_file = file;
    } else if (const auto rate = flag_value(argv[i], "--sed-names-per-second=")) {
      double value = 0;
      if (std::from_chars(rate->data(), rate->data() + rate->size(), value).ec == std::errc{}) {
        sed_names_per_second = value;
      }
    } else {
      rest.push_back(argv[i]);
    }
  }

  if (names_file) {
    std::ofstream out{std::string(*names_file), std::ios::binary};
    tx::bench::write_utf8_lines(out, tx::bench::layer_names());
    out.close();
    if (!out) {
      std::fprintf(stderr, "cannot write %s\n", std::string(*names_file).c_str());
      return 1;
    }
    return 0;
  }

  int rest_count = static_cast<int>(rest.size());
  benchmark::Initialize(&rest_count, rest.data());
  if (benchmark::ReportUnrecognizedArguments(rest_count, rest.data())) return 1;
  const std::vector<tx::bench::benchmark_goal> goals = tx::bench::register_rename_benchmarks();
  tx::bench::summary_reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.print_summary(goals, sed_names_per_second);
  benchmark::Shutdown();
  return 0;
}
