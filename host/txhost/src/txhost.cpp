#include "txhost.h"

#include <string_view>

#include "arguments.h"
#include "tx_host/basic.h"
#include "tx_host/services/plugin_loader.h"
#include "tx_host/services/service_registry.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

constexpr int kDone = 0;
constexpr int kCannotLoad = 1;
constexpr int kBadArguments = 2;

void print(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

int list_utilities(const txhost_options& options, std::FILE* out, std::FILE* err) {
  tx_host_set_lng(options.language_offset);
  service_registry registry;  // outlives the loader: the plug-in keeps what it was handed
  plugin_loader loader(registry);
  if (!loader.load(options.plugin)) {
    if (loader.error() == load_error::not_a_plugin) {
      print(err, "txhost: " + options.plugin + " is " + loader.error_message() + "\n");
    } else {
      print(err, "txhost: cannot load " + options.plugin + ": " + loader.error_message() + "\n");
    }
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
  return list_utilities(*parsed.options, out, err);
}

}  // namespace tx::host
