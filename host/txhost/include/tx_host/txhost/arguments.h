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
  // --lang ru|en|N: the language offset set before loading (0 Russian, 50000 English, or any
  // other offset N from 0 to 2147483647, for which the plug-in may hold no strings).
  std::int32_t language_offset = 0;
  // PROJECT --plugin PLUGIN: the project file (UTF-8) the plug-in's utility runs on and the
  // plug-in file (UTF-8); both empty when the utility is not run.
  std::string run_project;
  std::string run_plugin;
  // --script FILE: the script (UTF-8 path) that drives the dialog; empty: standard input.
  std::string script;
  // --no-localizer: the service registry offers the plug-in no localizer.
  bool no_localizer = false;
  // --hostile: every dialog is first handed null pairs and null texts wherever it takes them.
  bool hostile = false;
  // --gui: each dialog is a window of native controls (Windows build only).
  bool gui = false;
  // --screenshots DIR: where `screenshot FILE` writes a FILE named without a folder (--gui).
  std::string screenshots;
  // --all: the project listing and the saved names are printed in full, however long.
  bool all = false;
  // --timings: how long opening and saving the project file took, one line each on stderr.
  bool timings = false;
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
