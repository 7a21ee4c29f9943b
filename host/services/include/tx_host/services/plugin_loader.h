// Loads a plug-in the way the host does: the library by its file, its exported entry, the
// bundle's factories, then each factory's visit with the host's service registry and publish
// sink. The host then holds every published service until unload, when it detaches from them,
// calls the plug-in's unloading hook (TX_BUNDLE_NOOP_NAME, when exported) and closes the library.
//
//   tx::host::service_registry registry;
//   tx::host::plugin_loader loader(registry);
//   if (!loader.load(path)) report(loader.error_message());
//   for (const auto& command : loader.utilities()) use(command.id, command.caption());
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tx_host/services/publish_sink.h"
#include "tx_host/services/service_registry.h"
#include "tx_host/services/shared_library.h"
#include "tx_host/services/utility_command.h"

namespace tx::host {

// Why a load failed.
enum class load_error {
  none,
  // No such file, or the system's loader refused it (not a library, a missing import).
  cannot_load,
  // A library without the entry export.
  not_a_plugin,
  // The entry answered a null bundle.
  no_bundle,
};

class plugin_loader {
 public:
  // `registry` is borrowed and must outlive this loader (a plug-in keeps its localizer).
  explicit plugin_loader(service_registry& registry) noexcept : registry_(registry) {}
  plugin_loader(const plugin_loader&) = delete;
  plugin_loader& operator=(const plugin_loader&) = delete;
  // Unloads the plug-in if one is loaded.
  ~plugin_loader();

  // Unloads what was loaded, then loads the plug-in at `path` (UTF-8) and lets it publish.
  // False on failure, with error() and error_message() telling why; nothing stays loaded.
  bool load(const std::string& path);
  // Detaches from every held service, calls the unloading hook, then closes the library.
  // Nothing when none is loaded.
  void unload();

  bool loaded() const noexcept { return library_ != nullptr; }
  load_error error() const noexcept { return error_; }
  // The reason of the last failure, for a person; empty after a success.
  const std::string& error_message() const noexcept { return error_message_; }

  const publish_sink& sink() const noexcept { return sink_; }
  // The commands of every held utility service, in order of publication.
  std::vector<utility_command> utilities() const;

 private:
  bool fail(load_error error, std::string message);

  service_registry& registry_;
  // Declared before the library: the plug-in may keep the sink's pairs until it is closed.
  publish_sink sink_;
  std::unique_ptr<shared_library> library_;
  load_error error_ = load_error::none;
  std::string error_message_;
};

}  // namespace tx::host
