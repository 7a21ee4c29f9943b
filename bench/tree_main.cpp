// The element tree's scale benchmarks: Google Benchmark's flags, then the scale table. The
// projects are written once into the build folder (TX_TREE_BENCH_PROJECTS) and reused.
#include <benchmark/benchmark.h>

#include "tree_benchmarks.h"
#include "tree_scale_reporter.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  tx::bench::register_tree_benchmarks(TX_TREE_BENCH_PROJECTS);
  tx::bench::tree_scale_reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.print_table();
  benchmark::Shutdown();
  return 0;
}
