// txhost's command line: what to do, read from the arguments after the program name.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace tx::host {

struct txhost_options {
  // --help: print the usage and do nothing else.
  bool help = false;
  // --list PLUGIN: the plug-in file (UTF-8) whose utilities are listed; empty: none.
  std::string plugin;
  // --project FILE: the project file (UTF-8) opened first and printed; empty: none.
  std::string project;
  // --lang ru|en: the language offset set before loading (0 Russian, 50000 English).
  std::int32_t language_offset = 0;
};

struct parsed_arguments {
  // Set when the arguments make sense; `error` tells what is wrong otherwise.
  std::optional<txhost_options> options;
  std::string error;
};

parsed_arguments parse_arguments(std::span<const std::string> arguments);

// The usage text, ending with a line break.
const char* txhost_usage() noexcept;

}  // namespace tx::host
