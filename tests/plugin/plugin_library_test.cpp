// The built plug-in library, loaded as a host loads it: by its file, through its export only.
// What the in-process tests already cover is not repeated; this is what only the library
// shows: its exports, its static registration, and its unloading.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host_services.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#include <unistd.h>
#endif

namespace tx {
namespace {

// The plug-in file, beside this test program.
std::string plugin_path() {
#ifdef _WIN32
  char buffer[MAX_PATH];
  const DWORD n = GetModuleFileNameA(nullptr, buffer, MAX_PATH);
#else
  char buffer[4096];
  const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer);
#endif
  std::string path(buffer, n > 0 ? static_cast<std::size_t>(n) : 0);
  return path.substr(0, path.find_last_of("/\\") + 1) + TX_PLUGIN_FILE;
}

class library {
 public:
  library() {
#ifdef _WIN32
    handle_ = LoadLibraryExA(plugin_path().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
#else
    handle_ = dlopen(plugin_path().c_str(), RTLD_NOW | RTLD_LOCAL);
#endif
  }
  ~library() { unload(); }
  library(const library&) = delete;
  library& operator=(const library&) = delete;

  void unload() {
    if (handle_ == nullptr) return;
#ifdef _WIN32
    FreeLibrary(handle_);
#else
    dlclose(handle_);
#endif
    handle_ = nullptr;
  }
  void* symbol(const char* name) const {
#ifdef _WIN32
    return reinterpret_cast<void*>(GetProcAddress(handle_, name));
#else
    return dlsym(handle_, name);
#endif
  }
  bool loaded() const { return handle_ != nullptr; }

  tx_custom_pointer bundle(void* context = nullptr) const {
    const auto entry = reinterpret_cast<tx_bundle_entry_fn>(symbol(TX_BUNDLE_ENTRY_NAME));
    return entry != nullptr ? entry(context) : tx_custom_pointer{};
  }

 private:
#ifdef _WIN32
  HMODULE handle_ = nullptr;
#else
  void* handle_ = nullptr;
#endif
};

// Loads the library and does what a host does after loading: visit the bundle, then every
// factory.
struct loaded_plugin {
  library lib;
  test::publish_sink sink;
  test::registry registry;
  loaded_plugin() {
    registry.has_localizer = false;
    const tx_custom_pointer b = lib.bundle();
    if (b.table == nullptr) return;
    test::ops<tx_bundle_table>(b).visit_services(b.object, sink.pointer());
    sink.visit_factories(registry.pointer());
  }
};

TEST(PluginLibrary, LoadsAndOffersBothExports) {
  library lib;
  ASSERT_TRUE(lib.loaded()) << plugin_path();
  EXPECT_NE(lib.symbol(TX_BUNDLE_ENTRY_NAME), nullptr);
  ASSERT_NE(lib.symbol(TX_BUNDLE_NOOP_NAME), nullptr);
  int context = 0;
  const tx_custom_pointer b = lib.bundle(&context);
  EXPECT_EQ(b.object, &context);
  const auto& t = test::ops<tx_bundle_table>(b);
  for (auto reserved : {t.reserved_2, t.reserved_3, t.reserved_4, t.reserved_5}) {
    EXPECT_EQ(reinterpret_cast<void*>(reserved), lib.symbol(TX_BUNDLE_NOOP_NAME));
    reserved();
  }
}

TEST(PluginLibrary, UnloadingReleasesServicesTheHostNoLongerHolds) {
  std::vector<std::string> log;
  test::referrer host{.name = "host", .holding = false, .log = &log};
  {
    loaded_plugin p;
    ASSERT_EQ(p.sink.utility_services.pairs.size(), 1u);
    const tx_custom_pointer service = p.sink.utility_services.pairs[0];
    const tx_custom_pointer referent =
        test::ops<tx_utility_service_interface_2>(service).referent(service.object);
    test::ops<tx_referent_interface_1>(referent).attach(referent.object, host.pointer());
    p.lib.unload();
  }
  EXPECT_EQ(log, (std::vector<std::string>{"host:holds", "host:released"}));
}

}  // namespace
}  // namespace tx
