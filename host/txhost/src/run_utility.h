// txhost PROJECT --plugin PLUGIN: opens the project, loads the plug-in, runs its utility
// txk_project_rename with the dialog shown as text and driven by a script or standard input,
// and saves the project when the dialog wrote new names into it.
#pragma once

#include <cstdio>

#include "tx_host/services/plugin_loader.h"
#include "tx_host/txhost/arguments.h"

namespace tx::host {

// Tells on `err` why `loader` could not load the plug-in at `path`.
void report_load_failure(const plugin_loader& loader, const std::string& path, std::FILE* err);

// The exit status of txhost: 0 done, 1 the project, the plug-in or its utility could not be
// had or the project could not be saved, 3 the script is wrong or stopped with an error.
int run_utility(const txhost_options& options, std::FILE* out, std::FILE* err);

}  // namespace tx::host
