// The built plug-in library, loaded as a host loads it: by its file, through its export only.
// What the in-process tests already cover is not repeated; this is what only the library
// shows: its static registration and its unloading.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host_services.h"
#include "tx_host/services/shared_library.h"

namespace tx {
namespace {

TEST(PluginLibrary, UnloadingReleasesServicesTheHostNoLongerHolds) {
  std::vector<std::string> log;
  test::referrer host{.name = "host", .holding = false, .log = &log};
  test::publish_sink sink;
  test::registry registry;
  registry.has_localizer = false;
  std::string error;
  auto library = host::shared_library::open(std::filesystem::absolute(TX_PLUGIN_PATH), error);
  ASSERT_NE(library, nullptr) << error;
  const auto entry = reinterpret_cast<tx_bundle_entry_fn>(library->symbol(TX_BUNDLE_ENTRY_NAME));
  ASSERT_NE(entry, nullptr);
  const tx_custom_pointer bundle = entry(nullptr);
  test::ops<tx_bundle_table>(bundle).visit_services(bundle.object, sink.pointer());
  sink.visit_factories(registry.pointer());

  ASSERT_EQ(sink.utility_services.pairs.size(), 1u);
  const tx_custom_pointer service = sink.utility_services.pairs[0];
  const tx_custom_pointer referent =
      test::ops<tx_utility_service_interface_2>(service).referent(service.object);
  test::ops<tx_referent_interface_1>(referent).attach(referent.object, host.pointer());
  library.reset();
  EXPECT_EQ(log, (std::vector<std::string>{"host:holds", "host:released"}));
}

}  // namespace
}  // namespace tx
