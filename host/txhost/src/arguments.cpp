#include "arguments.h"

#include <algorithm>
#include <array>
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
constexpr std::array<value_option, 3> value_options{{
    {"--list", "a PLUGIN"},
    {"--project", "a FILE"},
    {"--lang", "ru or en"},
}};

parsed_arguments failure(std::string error) { return {std::nullopt, std::move(error)}; }

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
    const auto option =
        std::find_if(value_options.begin(), value_options.end(),
                     [&argument](const value_option& o) { return o.name == argument; });
    if (option == value_options.end()) return failure("unexpected argument '" + argument + "'");
    bool& given = seen[static_cast<std::size_t>(option - value_options.begin())];
    if (given) return failure(argument + " given twice");
    given = true;
    const std::string needs = argument + " needs " + std::string(option->needs);
    if (i + 1 == arguments.size() || arguments[i + 1].starts_with("--")) return failure(needs);
    const std::string& value = arguments[++i];
    if (argument == "--lang") {
      if (value != "ru" && value != "en") {
        return failure("unknown language '" + value + "' (ru or en)");
      }
      options.language_offset = value == "ru" ? kRussian : kEnglish;
      continue;
    }
    if (value.empty()) return failure(needs);
    (argument == "--list" ? options.plugin : options.project) = value;
  }
  if (!options.help && options.plugin.empty() && options.project.empty()) {
    return failure(arguments.empty() ? "nothing to do"
                                     : "--list PLUGIN or --project FILE is required");
  }
  return {options, {}};
}

const char* txhost_usage() noexcept {
  return "Usage: txhost --list PLUGIN [--project FILE] [--lang ru|en]\n"
         "       txhost --project FILE [--lang ru|en]\n"
         "       txhost --help\n"
         "\n"
         "Loads the Tarvex plug-in PLUGIN as the host application does and prints one line per\n"
         "utility it publishes: its identifier, a tab and its caption, in UTF-8.\n"
         "\n"
         "With --project, first opens the project file FILE and prints its elements as the host\n"
         "holds them: collections, scenes, layer groups and layers, one a line, indented by\n"
         "level, with their uuids and captions.\n"
         "\n"
         "  --list PLUGIN   the plug-in library to load\n"
         "  --project FILE  the project file to open (docs/project-format.md)\n"
         "  --lang ru|en    the interface language (default ru)\n"
         "  --help          print this help\n"
         "\n"
         "Exit status: 0 done, 1 the plug-in could not be loaded or the project file was\n"
         "refused, 2 bad arguments.\n";
}

}  // namespace tx::host
