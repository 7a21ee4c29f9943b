#include "arguments.h"

namespace tx::host {
namespace {

constexpr std::int32_t kRussian = 0;
constexpr std::int32_t kEnglish = 50000;

parsed_arguments failure(std::string error) { return {std::nullopt, std::move(error)}; }

}  // namespace

parsed_arguments parse_arguments(std::span<const std::string> arguments) {
  txhost_options options;
  bool have_list = false;
  bool have_lang = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help") {
      options.help = true;
      continue;
    }
    if (argument != "--list" && argument != "--lang") {
      return failure("unexpected argument '" + argument + "'");
    }
    bool& seen = argument == "--list" ? have_list : have_lang;
    if (seen) return failure(argument + " given twice");
    seen = true;
    if (i + 1 == arguments.size() || arguments[i + 1].starts_with("--")) {
      return failure(argument + (argument == "--list" ? " needs a PLUGIN" : " needs ru or en"));
    }
    const std::string& value = arguments[++i];
    if (argument == "--list") {
      if (value.empty()) return failure("--list needs a PLUGIN");
      options.plugin = value;
    } else if (value == "ru" || value == "en") {
      options.language_offset = value == "ru" ? kRussian : kEnglish;
    } else {
      return failure("unknown language '" + value + "' (ru or en)");
    }
  }
  if (!options.help && !have_list) {
    return failure(arguments.empty() ? "nothing to do" : "--list PLUGIN is required");
  }
  return {options, {}};
}

const char* txhost_usage() noexcept {
  return "Usage: txhost --list PLUGIN [--lang ru|en]\n"
         "       txhost --help\n"
         "\n"
         "Loads the Tarvex plug-in PLUGIN as the host application does and prints one line per\n"
         "utility it publishes: its identifier, a tab and its caption, in UTF-8.\n"
         "\n"
         "  --list PLUGIN  the plug-in library to load\n"
         "  --lang ru|en   the interface language (default ru)\n"
         "  --help         print this help\n"
         "\n"
         "Exit status: 0 done, 1 the plug-in could not be loaded, 2 bad arguments.\n";
}

}  // namespace tx::host
