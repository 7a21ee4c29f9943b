// After the plug-in's utility ran: the names it wrote into the project, saved and listed.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

namespace tx::host {

// Where and how much a save tells.
struct saving_report {
  std::FILE* out = nullptr;      // "saved PATH: N names" and the names
  std::FILE* err = nullptr;      // why the project could not be saved
  std::size_t listed_names = 0;  // names listed before "… and N more names"
  std::FILE* timings = nullptr;  // "txhost: saving PATH took N ms"; null: not told
};

// When the plug-in wrote captions since the project was opened, saves the open project to
// `path` and prints "saved PATH: N names" (N writes) and one "  OLD → NEW" line per write, in
// the order written, the first `listed_names` of them and then one line telling how many more
// there are; prints and saves nothing when it wrote none. False (the reason on `err`) when the
// project could not be saved.
bool save_written_names(const std::string& path, const saving_report& report);

}  // namespace tx::host
