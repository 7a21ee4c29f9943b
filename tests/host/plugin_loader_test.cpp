#include "tx_host/services/plugin_loader.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tx/services.h"
#include "tx_host/basic.h"

namespace tx::host {
namespace {

// The built test libraries: a minimal plug-in, and a library without the bundle entry.
const std::string kFakePlugin = TX_FAKE_PLUGIN_PATH;
const std::string kNotAPlugin = TX_NOT_A_PLUGIN_PATH;
// Any file that is not a library.
const std::string kTextFile = TX_TEXT_FILE_PATH;

// The fake plug-in's probes. Opening it here as well keeps its state alive across the
// loader's loads and unloads, so that the probes can be read after an unload.
class fake_plugin_probe {
 public:
  fake_plugin_probe() {
    std::string error;
    library_ = shared_library::open(std::filesystem::absolute(kFakePlugin), error);
    if (library_ == nullptr) throw std::runtime_error(error);
  }
  // `service`: 0 the utility service, 1 the modal dialog service.
  std::size_t referrers(int service) const { return probe<std::size_t(int)>("referrers")(service); }
  std::size_t detaches(int service) const { return probe<std::size_t(int)>("detaches")(service); }
  void release_services() const { probe<void()>("release_services")(); }
  std::size_t unloading_calls() const { return probe<std::size_t()>("unloading_calls")(); }

 private:
  template <class F>
  F* probe(const std::string& name) const {
    const auto address = library_->symbol(("tx_fake_plugin_" + name).c_str());
    if (address == nullptr) throw std::runtime_error(name);
    return reinterpret_cast<F*>(address);
  }
  std::unique_ptr<shared_library> library_;
};

TEST(PluginLoader, FailsClearlyOnWhatIsNotAPlugin) {
  struct row {
    const char* name;
    std::string path;
    load_error error;
    std::string message_part;
  };
  const row rows[] = {
      {"empty path", "", load_error::cannot_load, ""},
      {"folder", std::filesystem::path(kTextFile).parent_path().string(), load_error::cannot_load,
       "not a regular file"},
      {"library without entry", kNotAPlugin, load_error::not_a_plugin, ""},
  };
  for (const row& r : rows) {
    service_registry registry;
    plugin_loader loader(registry);
    EXPECT_FALSE(loader.load(r.path)) << r.name;
    EXPECT_FALSE(loader.loaded()) << r.name;
    EXPECT_EQ(loader.error(), r.error) << r.name;
    EXPECT_FALSE(loader.error_message().empty()) << r.name;
    EXPECT_NE(loader.error_message().find(r.message_part), std::string::npos)
        << r.name << ": " << loader.error_message();
    EXPECT_TRUE(loader.sink().factories().empty()) << r.name;
    EXPECT_TRUE(loader.utilities().empty()) << r.name;
  }
}

TEST(PluginLoader, ListsTheFactoriesHoldsTheServicesAndLoadingAgainReplacesThem) {
  const fake_plugin_probe probe;
  service_registry registry;
  plugin_loader loader(registry);
  ASSERT_TRUE(loader.load(kFakePlugin)) << loader.error_message();
  EXPECT_TRUE(loader.loaded());
  EXPECT_EQ(loader.error(), load_error::none);
  EXPECT_TRUE(loader.error_message().empty());
  ASSERT_EQ(loader.sink().factories().size(), 1u);
  EXPECT_EQ(loader.sink().factories()[0].key, TX_UTILITY_NAMESPACE_KEY);
  EXPECT_EQ(loader.sink().utility_services().size(), 1u);
  EXPECT_EQ(loader.sink().dialog_services().size(), 1u);
  EXPECT_EQ(registry.requested_keys(), std::vector<std::u16string>{TX_LOCALIZER_NAMESPACE_KEY});

  // Loaded again with the localizer switched on: the plug-in's caption comes from it.
  registry.set_localizer_enabled(true);
  ASSERT_TRUE(loader.load(kFakePlugin)) << loader.error_message();
  EXPECT_EQ(probe.referrers(0), 1u);
  EXPECT_EQ(loader.sink().factories().size(), 1u);
  const std::vector<utility_command> commands = loader.utilities();
  ASSERT_EQ(commands.size(), 1u);
  EXPECT_EQ(commands[0].caption(), u"localized:10");
  EXPECT_EQ(registry.localizer_entry().clients(), std::vector<std::u16string>{u"tx_fake_plugin"});
  EXPECT_EQ(registry.localizer().requests(),
            (std::vector<localizer_request>{{localizer_request::kind::string, 10}}));

  EXPECT_FALSE(loader.load(kNotAPlugin));
  EXPECT_EQ(probe.referrers(0), 0u) << "a failed load still unloads the previous plug-in";
}

TEST(PluginLoader, UnloadDetachesFromEveryServiceStillHeldAndCallsTheUnloadingHook) {
  const fake_plugin_probe probe;
  const std::size_t utility_detaches = probe.detaches(0);
  const std::size_t dialog_detaches = probe.detaches(1);
  const std::size_t unloading_calls = probe.unloading_calls();
  service_registry registry;
  plugin_loader loader(registry);
  ASSERT_TRUE(loader.load(kFakePlugin)) << loader.error_message();
  EXPECT_EQ(probe.referrers(0), 1u);
  EXPECT_EQ(probe.referrers(1), 1u);
  EXPECT_EQ(probe.unloading_calls(), unloading_calls);

  loader.unload();
  EXPECT_FALSE(loader.loaded());
  EXPECT_EQ(probe.referrers(0), 0u);
  EXPECT_EQ(probe.referrers(1), 0u);
  EXPECT_EQ(probe.detaches(0), utility_detaches + 1);
  EXPECT_EQ(probe.detaches(1), dialog_detaches + 1);
  EXPECT_EQ(probe.unloading_calls(), unloading_calls + 1);
  EXPECT_TRUE(loader.sink().factories().empty());

  loader.unload();
  EXPECT_EQ(probe.unloading_calls(), unloading_calls + 1) << "nothing left to unload";

  // Services the plug-in destroyed are neither listed nor detached.
  ASSERT_TRUE(loader.load(kFakePlugin)) << loader.error_message();
  probe.release_services();
  EXPECT_TRUE(loader.utilities().empty());
  loader.unload();
  EXPECT_EQ(probe.detaches(0), utility_detaches + 1);
  EXPECT_EQ(probe.detaches(1), dialog_detaches + 1);
}

// The copy, away from the host's libraries, finds txk_basic already loaded by this program (the
// host), which sets its language through it, as txhost does.
TEST(PluginLoader, PathIsUtf8AndCaptionsFollowTheHostLanguage) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / std::filesystem::path(u8"tx_host_тест");
  std::filesystem::create_directories(folder);
  const std::filesystem::path copy =
      folder / std::filesystem::path(u8"подделка" +
                                     std::filesystem::path(kFakePlugin).extension().u8string());
  std::filesystem::copy_file(kFakePlugin, copy, std::filesystem::copy_options::overwrite_existing);
  const std::u8string utf8 = copy.u8string();
  {
    service_registry registry;
    plugin_loader loader(registry);
    EXPECT_TRUE(loader.load(std::string(utf8.begin(), utf8.end()))) << loader.error_message();
    const std::vector<utility_command> commands = loader.utilities();
    EXPECT_EQ(commands.size(), 1u);
    for (const utility_command& command : commands) {
      EXPECT_EQ(command.id, u"tx_fake_utility");
      EXPECT_EQ(command.caption(), u"Поддельная утилита");
      tx_host_set_lng(50000);
      EXPECT_EQ(command.caption(), u"Fake utility");
      tx_host_set_lng(0);
    }
  }
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tx::host
