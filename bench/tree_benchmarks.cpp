#include "tree_benchmarks.h"

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "heap_counter.h"
#include "tree/build.h"
#include "tree/commit.h"
#include "tree/execute.h"
#include "tree_session.h"
#include "tx/host/txk_prj.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"

namespace tx::bench {
namespace {

using benchmark_body = void (*)(benchmark::State&, tree_session&);

long page_faults_so_far() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt + usage.ru_majflt;
}

// Times one call per iteration as the iteration's time (the preparation around it is not
// timed) and, when the benchmark ends, reports the median run and the page faults per run.
class run_timer {
 public:
  explicit run_timer(benchmark::State& state) : state_(state) {}
  run_timer(const run_timer&) = delete;
  run_timer& operator=(const run_timer&) = delete;
  ~run_timer() {
    if (seconds_.empty()) return;
    std::sort(seconds_.begin(), seconds_.end());
    const std::size_t n = seconds_.size();
    const double median =
        n % 2 == 1 ? seconds_[n / 2] : (seconds_[n / 2 - 1] + seconds_[n / 2]) / 2;
    state_.counters[median_ms] = median * 1e3;
    state_.counters[page_faults] =
        static_cast<double>(faults_) / static_cast<double>(seconds_.size());
  }

  template <class Operation>
  void time(Operation&& operation) {
    const long faults = page_faults_so_far();
    const auto start = std::chrono::steady_clock::now();
    operation();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    faults_ += page_faults_so_far() - faults;
    state_.SetIterationTime(elapsed.count());
    seconds_.push_back(elapsed.count());
  }

 private:
  benchmark::State& state_;
  std::vector<double> seconds_;
  long faults_ = 0;
};

// Fails the run unless `held` is what every element should give.
bool expect(benchmark::State& state, std::size_t held, std::size_t elements, const char* what) {
  if (held == elements) return true;
  state.SkipWithError(
      (std::string(what) + ": " + std::to_string(held) + " instead of " + std::to_string(elements))
          .c_str());
  return false;
}

void build(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    session.root.reset();  // build_tree would destroy the old tree inside the timing
    timer.time([&] { build_tree(tx_prj_get_instance(), session.root); });
  }
  session.root->set_check(check_tick, false);
}

void collect(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    uuid_set ticked;
    timer.time([&] { session.root->collect_checked(ticked); });
    if (!expect(state, ticked.size(), session.elements(), "collected")) break;
  }
}

void execute(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    session.names = std::make_unique<prjrename_names>();
    session.set_find_replace();
    timer.time([&] { execute_operations(session.operations, *session.root, *session.names); });
    if (!expect(state, session.names->size(), session.elements(), "entries")) break;
  }
}

void refresh(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    session.build_ticked_tree();  // nodes that hold no pending name yet, as after a build
    timer.time([&] { session.root->refresh(*session.names); });
  }
}

void undo(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    timer.time([&] { session.names->undo(); });
    if (!expect(state, session.names->size(), 0, "entries after undo")) break;
    session.names->redo();
  }
}

void redo(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    session.names->undo();
    timer.time([&] { session.names->redo(); });
    if (!expect(state, session.names->size(), session.elements(), "entries after redo")) break;
  }
}

void commit(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    tx_host_project_clear_records();
    tx_host_msgs_clear();
    timer.time([&] { commit_names(*session.names, tx_prj_get_instance()); });
    const std::size_t writes = tx_host_project_caption_write_count();
    session.restore_captions();
    if (!expect(state, writes, session.elements(), "caption writes")) break;
  }
}

void host_writes(benchmark::State& state, tree_session& session) {
  run_timer timer(state);
  for (auto _ : state) {
    tx_host_project_clear_records();
    tx_host_msgs_clear();
    timer.time([&] { session.write_names(true); });
    const std::size_t writes = tx_host_project_caption_write_count();
    session.restore_captions();
    if (!expect(state, writes, session.elements(), "caption writes")) break;
  }
}

// The plug-in's heap bytes over the host's project: the tree alone, then tree and store after
// Execute, the peak on the way, and both after the tree has copied the pending names. Its time
// is that of the build and Execute together.
void memory(benchmark::State& state, tree_session& session) {
  for (auto _ : state) {
    session.root.reset();
    session.names.reset();
    const auto start = std::chrono::steady_clock::now();
    const std::size_t base = live_heap_bytes();
    reset_peak_heap_bytes();
    session.build_ticked_tree();
    const std::size_t tree = live_heap_bytes() - base;
    session.names = std::make_unique<prjrename_names>();
    session.set_find_replace();
    execute_operations(session.operations, *session.root, *session.names);
    const std::size_t executed = live_heap_bytes() - base;
    const std::size_t peak = peak_heap_bytes() - base;
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(elapsed.count());
    session.root->refresh(*session.names);
    const std::size_t refreshed = live_heap_bytes() - base;
    if (!expect(state, session.names->size(), session.elements(), "entries")) break;
    const auto per_element = [&](std::size_t bytes) {
      return static_cast<double>(bytes) / static_cast<double>(session.elements());
    };
    state.counters[tree_bytes] = per_element(tree);
    state.counters[executed_bytes] = per_element(executed);
    state.counters[peak_bytes] = per_element(peak);
    state.counters[refreshed_bytes] = per_element(refreshed);
  }
}

// Runs `body` against the session of `elements` elements, made ready before and after.
void run_on_session(benchmark::State& state, const std::filesystem::path& folder,
                    std::size_t elements, benchmark_body body) {
  tree_session& session = session_of(folder, elements);
  if (!session.error().empty()) {
    state.SkipWithError(session.error().c_str());
    for (auto _ : state) {
    }
    return;
  }
  session.make_ready();
  body(state, session);
  session.make_ready();
}

void register_one(const std::filesystem::path& folder, std::string_view operation,
                  std::size_t elements, benchmark_body body, std::size_t runs) {
  benchmark::RegisterBenchmark(tree_benchmark_name(operation, elements).c_str(),
                               [folder, elements, body](benchmark::State& state) {
                                 run_on_session(state, folder, elements, body);
                               })
      ->Unit(benchmark::kMillisecond)
      ->UseManualTime()
      ->Iterations(static_cast<benchmark::IterationCount>(runs));
}

}  // namespace

std::string tree_benchmark_name(std::string_view operation, std::size_t elements) {
  return "tree_" + std::string(operation) + "/" + std::to_string(elements);
}

void register_tree_benchmarks(const std::filesystem::path& folder) {
  static constexpr benchmark_body bodies[] = {&build, &collect, &execute, &refresh,
                                              &undo,  &redo,    &commit,  &host_writes};
  static_assert(std::size(bodies) == std::size(tree_operations));
  static_assert(std::size(tree_runs) == std::size(tree_sizes));
  for (std::size_t size = 0; size < std::size(tree_sizes); ++size) {
    const std::size_t elements = tree_sizes[size];
    register_one(folder, "memory", elements, &memory, 1);
    for (std::size_t i = 0; i < std::size(bodies); ++i) {
      register_one(folder, tree_operations[i].name, elements, bodies[i], tree_runs[size]);
    }
  }
}

}  // namespace tx::bench
