// The built plug-in library, loaded as a host loads it: by its file, through its export only.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host_doubles.h"
#include "tx_host/basic.h"

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
    if (!test::is_present({b.table, &sink})) return;
    test::table<tx_bundle_table>(b).visit_services(b.object, sink.pointer());
    sink.visit_factories(registry.pointer());
  }
  tx_custom_pointer utility_service() const {
    return sink.utility_services.empty() ? tx_custom_pointer{} : sink.utility_services.front();
  }
  tx_custom_pointer command() const {
    const tx_custom_pointer service = utility_service();
    test::named_sink names;
    if (test::is_present(service))
      test::table<tx_utility_service_interface_2>(service).visit_utilities(service.object,
                                                                           names.utilities());
    return names.entries.size() == 1 ? names.entries[0].second : tx_custom_pointer{};
  }
  tx_custom_pointer referent() const {
    const tx_custom_pointer service = utility_service();
    return test::table<tx_utility_service_interface_2>(service).referent(service.object);
  }
};

TEST(PluginLibrary, LoadsAndOffersBothExports) {
  library lib;
  ASSERT_TRUE(lib.loaded()) << plugin_path();
  EXPECT_NE(lib.symbol(TX_BUNDLE_ENTRY_NAME), nullptr);
  EXPECT_NE(lib.symbol(TX_BUNDLE_NOOP_NAME), nullptr);
  int context = 0;
  const tx_custom_pointer b = lib.bundle(&context);
  EXPECT_EQ(b.object, &context);
  const auto& t = test::table<tx_bundle_table>(b);
  for (auto reserved : {t.reserved_2, t.reserved_3, t.reserved_4, t.reserved_5}) {
    EXPECT_EQ(reinterpret_cast<void*>(reserved), lib.symbol(TX_BUNDLE_NOOP_NAME));
    reserved();
  }
}

TEST(PluginLibrary, BundleRootAnswersNoInterfaceName) {
  library lib;
  ASSERT_TRUE(lib.loaded());
  for (const char* name : {TX_UTILITY_INTERFACE_4, TX_UTILITY_SERVICE_INTERFACE_2,
                           TX_REFERENT_INTERFACE_1, TX_SERVICE_VISITOR_INTERFACE_0}) {
    const tx_custom_pointer found = test::ask(lib.bundle(), name);
    EXPECT_EQ(found.table, nullptr) << name;
    EXPECT_EQ(found.object, nullptr) << name;
  }
}

TEST(PluginLibrary, ListsItsFourFactoriesInRegistryOrder) {
  loaded_plugin p;
  std::vector<std::u16string> keys;
  for (const auto& f : p.sink.factories) keys.push_back(f.first);
  EXPECT_EQ(keys, (std::vector<std::u16string>{u"", TX_UTILITY_NAMESPACE_KEY, u"", u""}));
  EXPECT_EQ(p.sink.utility_services.size(), 1u);
  EXPECT_EQ(p.sink.dialog_services.size(), 2u);
}

TEST(PluginLibrary, OffersTheRenameUtilityCaptionedInTheHostsLanguage) {
  loaded_plugin p;
  const tx_custom_pointer service = p.utility_service();
  ASSERT_TRUE(test::is_present(service));
  test::named_sink names;
  test::table<tx_utility_service_interface_2>(service).visit_utilities(service.object,
                                                                       names.utilities());
  ASSERT_EQ(names.entries.size(), 1u);
  EXPECT_EQ(names.entries[0].first, u"txk_project_rename");
  const tx_custom_pointer command = names.entries[0].second;
  struct row {
    int32_t language;
    std::u16string caption;
  };
  for (const row& r :
       {row{0, u"Переименование элементов проекта"}, row{50000, u"Rename Project Elements"}}) {
    tx_host_set_lng(r.language);
    test::text_sink text;
    EXPECT_TRUE(
        test::table<tx_utility_interface_4>(command).caption(command.object, text.pointer()));
    EXPECT_EQ(text.texts, std::vector<std::u16string>{r.caption}) << r.language;
  }
  tx_host_set_lng(0);
}

TEST(PluginLibrary, TheCommandAnswersVersionFourOnly) {
  loaded_plugin p;
  const tx_custom_pointer command = p.command();
  ASSERT_TRUE(test::is_present(command));
  for (const char* other :
       {"tx_utility_interface_3", "tx_utility_interface_5", "tx_utility_interface_"}) {
    const tx_custom_pointer found = test::ask(command, other);
    EXPECT_EQ(found.table, nullptr) << other;
    EXPECT_EQ(found.object, nullptr) << other;
  }
  const tx_custom_pointer four = test::ask(command, TX_UTILITY_INTERFACE_4);
  EXPECT_EQ(four.table, command.table);
  EXPECT_EQ(four.object, command.object);
}

TEST(PluginLibrary, HostReferrersAreKeptAfterThePluginsOwn) {
  loaded_plugin p;
  const tx_custom_pointer referent = p.referent();
  ASSERT_TRUE(test::is_present(referent));
  const auto& t = test::table<tx_referent_interface_1>(referent);
  std::vector<std::string> log;
  test::referrer host{"host", true, &log, {}, {}};
  const std::size_t count = t.attach(referent.object, host.pointer());
  EXPECT_GE(count, 1u);
  const tx_custom_pointer last = t.referrer_at(referent.object, count - 1);
  EXPECT_EQ(last.object, &host);
  EXPECT_FALSE(test::is_present(t.referrer_at(referent.object, count)));
  t.detach(referent.object, host.pointer());
  EXPECT_FALSE(test::is_present(t.referrer_at(referent.object, count - 1)));
  EXPECT_TRUE(log.empty());  // the plug-in's own holder answered first
}

TEST(PluginLibrary, UnloadingReleasesServicesTheHostNoLongerHolds) {
  std::vector<std::string> log;
  test::referrer host{"host", false, &log, {}, {}};
  {
    loaded_plugin p;
    const tx_custom_pointer referent = p.referent();
    ASSERT_TRUE(test::is_present(referent));
    test::table<tx_referent_interface_1>(referent).attach(referent.object, host.pointer());
    p.lib.unload();
  }
  EXPECT_EQ(log, (std::vector<std::string>{"host:holds", "host:released"}));
}

}  // namespace
}  // namespace tx
