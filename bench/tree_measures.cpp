#include "tree_measures.h"

#include <cstdio>
#include <memory>

#include "heap_counter.h"
#include "process_memory.h"
#include "run_timer.h"
#include "tree/build.h"
#include "tree/commit.h"
#include "tree/execute.h"
#include "tree_session.h"
#include "tx/host/txk_prj.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"

namespace tx::bench {
namespace {

// One run of a step: its call timed, the preparation around it not. Returns why the result is
// not what every element should give, or nothing.
using tree_run = std::string (*)(tree_session&, run_timer&);

std::string unless_equal(std::size_t held, std::size_t expected, const char* what) {
  if (held == expected) return {};
  return std::string(what) + ": " + std::to_string(held) + " instead of " +
         std::to_string(expected);
}

std::string build(tree_session& session, run_timer& timer) {
  session.root.reset();  // build_tree would destroy the old tree inside the timing
  timer.time([&] { build_tree(tx_prj_get_instance(), session.root); });
  session.root->set_check(check_tick, false);
  return {};
}

std::string collect(tree_session& session, run_timer& timer) {
  uuid_set ticked;
  timer.time([&] { session.root->collect_checked(ticked); });
  return unless_equal(ticked.size(), session.elements(), "collected");
}

std::string execute(tree_session& session, run_timer& timer) {
  session.names = std::make_unique<prjrename_names>();
  session.set_find_replace();
  timer.time([&] { execute_operations(session.operations, *session.root, *session.names); });
  return unless_equal(session.names->size(), session.elements(), "entries");
}

std::string refresh(tree_session& session, run_timer& timer) {
  session.build_ticked_tree();  // nodes that hold no pending name yet, as after a build
  timer.time([&] { session.root->refresh(*session.names); });
  return {};
}

std::string undo(tree_session& session, run_timer& timer) {
  timer.time([&] { session.names->undo(); });
  std::string failed = unless_equal(session.names->size(), 0, "entries after undo");
  session.names->redo();
  return failed;
}

std::string redo(tree_session& session, run_timer& timer) {
  session.names->undo();
  timer.time([&] { session.names->redo(); });
  return unless_equal(session.names->size(), session.elements(), "entries after redo");
}

std::string commit(tree_session& session, run_timer& timer) {
  tx_host_project_clear_records();
  tx_host_msgs_clear();
  timer.time([&] { commit_names(*session.names, tx_prj_get_instance()); });
  const std::size_t writes = tx_host_project_caption_write_count();
  session.restore_captions();
  return unless_equal(writes, session.elements(), "caption writes");
}

std::string host_writes(tree_session& session, run_timer& timer) {
  tx_host_project_clear_records();
  tx_host_msgs_clear();
  timer.time([&] { session.write_names(true); });
  const std::size_t writes = tx_host_project_caption_write_count();
  session.restore_captions();
  return unless_equal(writes, session.elements(), "caption writes");
}

constexpr tree_run runs_of[] = {&build, &collect, &execute, &refresh,
                                &undo,  &redo,    &commit,  &host_writes};
static_assert(std::size(runs_of) == std::size(tree_operations));
static_assert(std::size(tree_runs) == std::size(tree_sizes));

// The plug-in's heap bytes over the host's project: the tree alone, then tree and store after
// Execute, the peak on the way, and both after the tree has taken the pending names.
std::string measure_memory(tree_session& session, scale_results& results) {
  session.root.reset();
  session.names.reset();
  const std::size_t base = live_heap_bytes();
  reset_peak_heap_bytes();
  session.build_ticked_tree();
  const std::size_t tree = live_heap_bytes() - base;
  session.names = std::make_unique<prjrename_names>();
  session.set_find_replace();
  execute_operations(session.operations, *session.root, *session.names);
  const std::size_t executed = live_heap_bytes() - base;
  const std::size_t peak = peak_heap_bytes() - base;
  session.root->refresh(*session.names);
  const std::size_t refreshed = live_heap_bytes() - base;
  const std::size_t bytes[] = {tree, executed, peak, refreshed};
  static_assert(std::size(bytes) == std::size(memory_rows));
  for (std::size_t i = 0; i < std::size(bytes); ++i) {
    results.set(memory_key(memory_rows[i].key, session.elements()),
                static_cast<double>(bytes[i]) / static_cast<double>(session.elements()));
  }
  return unless_equal(session.names->size(), session.elements(), "entries");
}

// The session of the open project; replaced when another size is asked for (the host holds one
// project per process, so each size loads its project once).
std::unique_ptr<tree_session>& open_session() {
  static std::unique_ptr<tree_session> open;
  return open;
}

}  // namespace

void close_tree_project() {
  // The session goes first, so that its tree never outlives the project it was built from.
  open_session().reset();
  tx_host_project_clear();
}

bool measure_tree(const std::filesystem::path& folder, std::size_t elements, std::size_t runs,
                  scale_results& results, std::string& error) {
  close_tree_project();
  std::unique_ptr<tree_session>& session = open_session();
  session = std::make_unique<tree_session>(folder, elements);
  if (!session->error().empty()) {
    error = session->error();
    close_tree_project();
    return false;
  }
  const auto record_failure = [&](const char* operation, const std::string& failed) {
    if (failed.empty()) return;
    results.set_text(tree_key(operation, elements, "failed"), failed);
    std::fprintf(stderr, "%s at %zu elements: %s\n", operation, elements, failed.c_str());
  };
  record_failure("memory", measure_memory(*session, results));
  for (std::size_t i = 0; i < std::size(tree_operations); ++i) {
    session->make_ready();
    run_timer timer;
    std::string failed;
    for (std::size_t run = 0; run < runs && failed.empty(); ++run) {
      failed = runs_of[i](*session, timer);
    }
    record_failure(tree_operations[i].key, failed);
    if (failed.empty()) {
      results.set(tree_key(tree_operations[i].key, elements, "ms"), timer.median_seconds() * 1e3);
      results.set(tree_key(tree_operations[i].key, elements, "runs"),
                  static_cast<double>(timer.runs()));
      results.set(tree_key(tree_operations[i].key, elements, "allocations"),
                  timer.allocations_per_run() / static_cast<double>(elements));
    }
  }
  results.set(memory_key(peak_resident_row, elements), static_cast<double>(peak_resident_bytes()));
  return true;
}

}  // namespace tx::bench
