// After the plug-in's utility ran: the names it wrote into the project, saved and listed.
#pragma once

#include <cstdio>
#include <string>

namespace tx::host {

// When the plug-in wrote captions since the project was opened, saves the open project to
// `path` and prints "saved PATH: N names" (N writes) and one "  OLD → NEW" line per write, in
// the order written; prints and saves nothing when it wrote none. False (the reason on `err`)
// when the project could not be saved.
bool save_written_names(const std::string& path, std::FILE* out, std::FILE* err);

}  // namespace tx::host
