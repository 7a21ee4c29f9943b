// The built plug-in library, loaded as a host loads it: by its file, through its export only.
// What the in-process tests already cover is not repeated; this is what only the library
// shows: its static registration and its unloading.
#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

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

#ifdef _WIN32
// The language is in the id (Russian at the id, English at id + 50000), so the string table and
// the images carry no language of their own: one copy each, language-neutral.
TEST(PluginLibrary, StringsAndImagesAreLanguageNeutral) {
  const std::wstring path = std::filesystem::absolute(TX_PLUGIN_PATH).wstring();
  const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(module, nullptr);
  struct resource {
    std::uint16_t type;
    std::uint16_t id;
  };
  constexpr std::uint16_t strings = 6, bitmaps = 2;  // RT_STRING, RT_BITMAP
  // String blocks hold 16 strings each: block 1 holds ids 10 to 15, block 3126 id 50010.
  for (const resource r :
       {resource{strings, 1}, resource{strings, 3126}, resource{bitmaps, 100},
        resource{bitmaps, 101}, resource{bitmaps, 103}, resource{bitmaps, 104}}) {
    std::vector<WORD> languages;
    EnumResourceLanguagesW(
        module, MAKEINTRESOURCEW(r.type), MAKEINTRESOURCEW(r.id),
        [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR seen) -> BOOL {
          reinterpret_cast<std::vector<WORD>*>(seen)->push_back(language);
          return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&languages));
    EXPECT_EQ(languages, std::vector<WORD>{MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL)}) << r.id;
  }
  FreeLibrary(module);
}
#endif

}  // namespace
}  // namespace tx
