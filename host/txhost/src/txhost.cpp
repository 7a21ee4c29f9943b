#include "txhost.h"

#include <string_view>

#include "project_tree.h"
#include "run_utility.h"
#include "tx/host/txk_prj.h"
#include "tx_host/basic.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"
#include "tx_host/services/plugin_loader.h"
#include "tx_host/services/service_registry.h"
#include "tx_host/services/utf.h"
#include "tx_host/txhost/arguments.h"
#include "tx_host/txhost/listing_limit.h"
#include "tx_host/txhost/step_timer.h"

namespace tx::host {
namespace {

constexpr int kDone = 0;
constexpr int kCannotLoad = 1;
constexpr int kBadArguments = 2;

void print(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

// Opens the project file and prints its elements; a refused file is told on `err`.
int open_project(const txhost_options& options, std::FILE* out, std::FILE* err) {
  const step_timer opening(options.timings ? err : nullptr);
  if (!tx_host_project_load(options.project.c_str())) {
    print(err, "txhost: " + std::string(tx_host_project_error()) + "\n");
    return kCannotLoad;
  }
  opening.report("opening " + options.project);
  print_project(tx_prj_get_instance(), out, listed_lines(options.all));
  return kDone;
}

int list_utilities(const txhost_options& options, std::FILE* out, std::FILE* err) {
  service_registry registry;  // outlives the loader: the plug-in keeps what it was handed
  plugin_loader loader(registry);
  if (!loader.load(options.plugin)) {
    report_load_failure(loader, options.plugin, err);
    return kCannotLoad;
  }
  for (const utility_command& command : loader.utilities()) {
    print(out, to_utf8(command.id) + "\t" + to_utf8(command.caption().value_or(u"")) + "\n");
  }
  std::fflush(out);
  loader.unload();
  return kDone;
}

}  // namespace

int run_txhost(std::span<const std::string> arguments, std::FILE* out, std::FILE* err) {
  const parsed_arguments parsed = parse_arguments(arguments);
  if (!parsed.options) {
    print(err, "txhost: " + parsed.error + "\n");
    print(err, txhost_usage());
    return kBadArguments;
  }
  if (parsed.options->help) {
    print(out, txhost_usage());
    return kDone;
  }
  const txhost_options& options = *parsed.options;
  // Every host library is loaded with txhost, before any plug-in; the record of warnings and
  // progress starts empty for this run.
  tx_host_msgs_clear();
  tx_host_set_lng(options.language_offset);
  if (!options.run_plugin.empty()) return run_utility(options, out, err);
  if (!options.project.empty()) {
    if (const int status = open_project(options, out, err); status != kDone) return status;
  }
  if (options.plugin.empty()) return kDone;
  return list_utilities(options, out, err);
}

}  // namespace tx::host
