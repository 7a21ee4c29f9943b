#include "arguments.h"

#include <gtest/gtest.h>

#include <vector>

namespace tx::host {
namespace {

TEST(TxhostArguments, AcceptsListProjectLanguageAndHelpInAnyOrder) {
  struct row {
    std::vector<std::string> arguments;
    bool help;
    std::string plugin;
    std::string project;
    std::int32_t language;
  };
  const row rows[] = {
      {{"--list", "p.dll"}, false, "p.dll", "", 0},
      {{"--list", "p.dll", "--lang", "ru"}, false, "p.dll", "", 0},
      {{"--list", "p.dll", "--lang", "en"}, false, "p.dll", "", 50000},
      {{"--lang", "en", "--list", "/a b/плагин.so"}, false, "/a b/плагин.so", "", 50000},
      {{"--help"}, true, "", "", 0},
      {{"--list", "p.dll", "--help"}, true, "p.dll", "", 0},
      {{"--project", "город.json"}, false, "", "город.json", 0},
      {{"--project", "c.json", "--lang", "en"}, false, "", "c.json", 50000},
      {{"--project", "c.json", "--list", "p.dll"}, false, "p.dll", "c.json", 0},
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    ASSERT_TRUE(parsed.options.has_value()) << parsed.error;
    EXPECT_EQ(parsed.options->help, r.help) << r.arguments[0];
    EXPECT_EQ(parsed.options->plugin, r.plugin) << r.arguments[0];
    EXPECT_EQ(parsed.options->project, r.project) << r.arguments[0];
    EXPECT_EQ(parsed.options->language_offset, r.language) << r.arguments[0];
    EXPECT_TRUE(parsed.error.empty());
  }
}

TEST(TxhostArguments, RejectsWhatMakesNoSense) {
  struct row {
    std::vector<std::string> arguments;
    std::string error;
  };
  const row rows[] = {
      {{}, "nothing to do"},
      {{"--lang", "en"}, "--list PLUGIN or --project FILE is required"},
      {{"--project"}, "--project needs a FILE"},
      {{"--project", ""}, "--project needs a FILE"},
      {{"--project", "--list", "p.dll"}, "--project needs a FILE"},
      {{"--project", "a", "--project", "b"}, "--project given twice"},
      {{"--list"}, "--list needs a PLUGIN"},
      {{"--list", ""}, "--list needs a PLUGIN"},
      {{"--list", "--lang", "en"}, "--list needs a PLUGIN"},
      {{"--list", "p.dll", "--lang"}, "--lang needs ru, en or an offset"},
      {{"--list", "p.dll", "--lang", "de"}, "unknown language 'de' (ru, en or an offset)"},
      {{"--list", "p.dll", "--lang", "EN"}, "unknown language 'EN' (ru, en or an offset)"},
      {{"--list", "a", "--list", "b"}, "--list given twice"},
      {{"--list", "a", "--lang", "ru", "--lang", "en"}, "--lang given twice"},
      {{"--list", "a", "extra"}, "unexpected argument 'extra'"},
      {{"-h"}, "unexpected argument '-h'"},
      {{"--help", "--verbose"}, "unexpected argument '--verbose'"},
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    EXPECT_FALSE(parsed.options.has_value()) << r.error;
    EXPECT_EQ(parsed.error, r.error);
  }
}

}  // namespace
}  // namespace tx::host
