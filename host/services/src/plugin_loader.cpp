#include "tx_host/services/plugin_loader.h"

#include <filesystem>
#include <system_error>

#include "tx/bundle.h"
#include "tx/utility.h"
#include "tx_host/services/utility_collector.h"

namespace tx::host {
namespace {

// The file at a UTF-8 path, made absolute (the Windows loader needs it so for its altered
// search path, and dlopen would search its own path for a bare name).
std::filesystem::path resolve(const std::string& path, std::error_code& error) {
  const std::u8string utf8(path.begin(), path.end());
  std::filesystem::path file = std::filesystem::absolute(std::filesystem::path(utf8), error);
  file.make_preferred();
  return file;
}

}  // namespace

plugin_loader::~plugin_loader() { unload(); }

bool plugin_loader::load(const std::string& path) {
  unload();
  error_ = load_error::none;
  error_message_.clear();

  std::error_code error;
  const std::filesystem::path file = resolve(path, error);
  if (error || !std::filesystem::exists(file, error)) {
    return fail(load_error::cannot_load, "no such file");
  }
  if (!std::filesystem::is_regular_file(file, error)) {
    return fail(load_error::cannot_load, "not a regular file");
  }
  std::string reason;
  std::unique_ptr<shared_library> library = shared_library::open(file, reason);
  if (library == nullptr) return fail(load_error::cannot_load, reason);

  const auto entry = reinterpret_cast<tx_bundle_entry_fn>(library->symbol(TX_BUNDLE_ENTRY_NAME));
  if (entry == nullptr) {
    return fail(load_error::not_a_plugin,
                "not a Tarvex plug-in (no " TX_BUNDLE_ENTRY_NAME " export)");
  }
  library_ = std::move(library);

  // The context only has to be non-null, so that the bundle pair counts as present.
  const tx_custom_pointer bundle = entry(this);
  if (!present(bundle)) {
    unload();
    return fail(load_error::no_bundle, "its " TX_BUNDLE_ENTRY_NAME " answered no bundle");
  }
  call(bundle, &tx_bundle_table::visit_services, sink_.service_visitor());

  // A copy: a factory's visit may publish into the sink.
  const std::vector<published_factory> factories = sink_.factories();
  for (const published_factory& factory : factories) {
    call(factory.factory, &tx_service_factory_table::visit, registry_.pair(),
         sink_.service_visitor());
  }
  return true;
}

void plugin_loader::unload() {
  if (library_ == nullptr) return;
  sink_.release_all();
  // As the host application does, the plug-in's unloading hook is called, when it exports one,
  // right before the library is closed.
  if (const shared_library::symbol_address hook = library_->symbol(TX_BUNDLE_NOOP_NAME)) hook();
  library_.reset();
}

std::vector<utility_command> plugin_loader::utilities() const {
  utility_collector collector;
  for (const tx_custom_pointer& service : sink_.utility_services()) {
    call(service, &tx_utility_service_interface_2::visit_utilities, collector.pair());
  }
  return collector.commands();
}

bool plugin_loader::fail(load_error error, std::string message) {
  error_ = error;
  error_message_ = std::move(message);
  return false;
}

}  // namespace tx::host
