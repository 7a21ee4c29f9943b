// txhost's work, apart from the platform's entry point: arguments in UTF-8, output to the given
// streams in UTF-8. Returns the exit status (0 done, 1 the plug-in could not be loaded or the
// project file was refused, 2 bad arguments).
#pragma once

#include <cstdio>
#include <span>
#include <string>

namespace tx::host {

int run_txhost(std::span<const std::string> arguments, std::FILE* out, std::FILE* err);

}  // namespace tx::host
