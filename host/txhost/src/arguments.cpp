#include "tx_host/txhost/arguments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace tx::host {
namespace {

constexpr std::int32_t kRussian = 0;
constexpr std::int32_t kEnglish = 50000;

// The options that take a value, and what each says when the value is missing.
struct value_option {
  std::string_view name;
  std::string_view needs;
};
constexpr std::array<value_option, 6> value_options{{
    {"--list", "a PLUGIN"},
    {"--project", "a FILE"},
    {"--lang", "ru, en or an offset"},
    {"--plugin", "a PLUGIN"},
    {"--script", "a FILE"},
    {"--screenshots", "a DIR"},
}};

// The option's value field, for the options that keep a path.
std::string& path_of(txhost_options& options, std::string_view option) {
  if (option == "--list") return options.plugin;
  if (option == "--project") return options.project;
  if (option == "--plugin") return options.run_plugin;
  if (option == "--screenshots") return options.screenshots;
  return options.script;
}

// The option's field, for the options that take no value; null for any other argument.
bool* flag_of(txhost_options& options, std::string_view argument) {
  if (argument == "--no-localizer") return &options.no_localizer;
  if (argument == "--hostile") return &options.hostile;
  if (argument == "--gui") return &options.gui;
  if (argument == "--all") return &options.all;
  if (argument == "--timings") return &options.timings;
  return nullptr;
}

parsed_arguments failure(std::string error) { return {std::nullopt, std::move(error)}; }

// "ru", "en", or a language offset written in decimal digits (0 to 2147483647).
std::optional<std::int32_t> language_of(std::string_view value) {
  if (value == "ru") return kRussian;
  if (value == "en") return kEnglish;
  if (value.empty() ||
      !std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  std::int32_t offset = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), offset);
  if (error != std::errc() || end != value.data() + value.size()) return std::nullopt;
  return offset;
}

}  // namespace

parsed_arguments parse_arguments(std::span<const std::string> arguments) {
  txhost_options options;
  std::array<bool, value_options.size()> seen{};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help") {
      options.help = true;
      continue;
    }
    if (bool* const flag = flag_of(options, argument)) {
      if (*flag) return failure(argument + " given twice");
      *flag = true;
      continue;
    }
    const auto option =
        std::find_if(value_options.begin(), value_options.end(),
                     [&argument](const value_option& o) { return o.name == argument; });
    if (option == value_options.end()) {
      // One word that is no option: the project the utility runs on.
      if (argument.starts_with("-") || argument.empty() || !options.run_project.empty()) {
        return failure("unexpected argument '" + argument + "'");
      }
      options.run_project = argument;
      continue;
    }
    bool& given = seen[static_cast<std::size_t>(option - value_options.begin())];
    if (given) return failure(argument + " given twice");
    given = true;
    const std::string needs = argument + " needs " + std::string(option->needs);
    if (i + 1 == arguments.size() || arguments[i + 1].starts_with("--")) return failure(needs);
    const std::string& value = arguments[++i];
    if (argument == "--lang") {
      const std::optional<std::int32_t> offset = language_of(value);
      if (!offset) return failure("unknown language '" + value + "' (ru, en or an offset)");
      options.language_offset = *offset;
      continue;
    }
    if (value.empty()) return failure(needs);
    path_of(options, argument) = value;
  }
  const bool running = !options.run_project.empty() || !options.run_plugin.empty();
  if (!options.run_project.empty() && options.run_plugin.empty()) {
    return failure("unexpected argument '" + options.run_project + "'");
  }
  if (!options.run_plugin.empty() && options.run_project.empty()) {
    return failure("--plugin PLUGIN needs a PROJECT to run on");
  }
  if (running && (!options.plugin.empty() || !options.project.empty())) {
    return failure("PROJECT --plugin PLUGIN goes without --list and --project");
  }
  if (!options.script.empty() && !running) {
    return failure("--script FILE goes with PROJECT --plugin PLUGIN");
  }
  if ((options.no_localizer || options.hostile || options.gui) && !running) {
    return failure(std::string(options.hostile ? "--hostile"
                               : options.gui   ? "--gui"
                                               : "--no-localizer") +
                   " goes with PROJECT --plugin PLUGIN");
  }
  // Both are about the project file: its listing, its opening and its saving.
  if ((options.all || options.timings) && !running && options.project.empty()) {
    return failure(std::string(options.all ? "--all" : "--timings") +
                   " goes with --project FILE or PROJECT --plugin PLUGIN");
  }
  if (!options.screenshots.empty() && !options.gui) {
    return failure("--screenshots DIR goes with --gui");
  }
#ifndef _WIN32
  if (options.gui) return failure("--gui shows a window in the Windows build only");
#endif
  if (!options.help && !running && options.plugin.empty() && options.project.empty()) {
    return failure(arguments.empty() ? "nothing to do"
                                     : "--list PLUGIN or --project FILE is required");
  }
  return {options, {}};
}

const char* txhost_usage() noexcept {
  return "Usage: txhost --list PLUGIN [--project FILE [--all] [--timings]] [--lang ru|en|N]\n"
         "       txhost --project FILE [--all] [--timings] [--lang ru|en|N]\n"
         "       txhost PROJECT --plugin PLUGIN [--script FILE] [--lang ru|en|N] [--no-localizer]\n"
         "              [--hostile] [--gui [--screenshots DIR]] [--all] [--timings]\n"
         "       txhost --help\n"
         "\n"
         "Loads the Tarvex plug-in PLUGIN as the host application does and prints one line per\n"
         "utility it publishes: its identifier, a tab and its caption, in UTF-8.\n"
         "\n"
         "With --project, first opens the project file FILE and prints its elements as the host\n"
         "holds them: collections, scenes, layer groups and layers, one a line, indented by\n"
         "level, with their uuids and captions. A long listing stops after its first 200\n"
         "lines with one line that tells how many more there are.\n"
         "\n"
         "With PROJECT --plugin, opens and prints the project file PROJECT, loads PLUGIN and runs\n"
         "its utility txk_project_rename. Its dialog is printed as text and driven by the\n"
         "commands of the script FILE, or of standard input (docs/script-format.md); the script\n"
         "may delete project elements while the dialog is shown and run the utility again after\n"
         "it closed. When a dialog wrote new names into the project, PROJECT is saved and the\n"
         "names are listed (the first 200, then how many more).\n"
         "\n"
         "  --list PLUGIN    the plug-in library to load\n"
         "  --project FILE   the project file to open (docs/project-format.md)\n"
         "  --plugin PLUGIN  the plug-in whose utility runs on PROJECT\n"
         "  --script FILE    the commands that drive the dialog (default: standard input)\n"
         "  --lang ru|en|N   the interface language (default ru), or the language offset N\n"
         "                   itself (0 Russian, 50000 English; any other has no strings)\n"
         "  --no-localizer   the service registry offers the plug-in no localizer\n"
         "  --hostile        before each dialog is driven, hand each of its elements a null pair\n"
         "                   wherever it takes a visitor, a row, a view or a host reference, and\n"
         "                   a null text wherever it takes a text; the dialog must not change\n"
         "  --gui            show each dialog as a window of native controls (Windows build):\n"
         "                   the script drives it through its controls; without --script a\n"
         "                   person works it with mouse and keyboard\n"
         "  --screenshots DIR  where `screenshot FILE` saves a FILE named without a folder\n"
         "  --all            list every element of the project and every saved name, however\n"
         "                   many (by default a listing stops after 200 lines)\n"
         "  --timings        print on standard error how long opening and saving the project\n"
         "                   file took, in milliseconds, one line each\n"
         "  --help           print this help\n"
         "\n"
         "Exit status: 0 done, 1 the plug-in could not be loaded, the project file was refused\n"
         "or could not be saved, 2 bad arguments, 3 the script is wrong or stopped with an\n"
         "error (the project file is then left as it was).\n";
}

}  // namespace tx::host
