// txhost PROJECT --plugin PLUGIN [--script FILE]: what it accepts and what it refuses.
#include <gtest/gtest.h>

#include <vector>

#include "arguments.h"

namespace tx::host {
namespace {

TEST(TxhostRunArguments, AcceptsAProjectWithAPluginAndAScriptInAnyOrder) {
  struct row {
    std::vector<std::string> arguments;
    std::string project, plugin, script;
    std::int32_t language;
    bool no_localizer = false, hostile = false;
  };
  const row rows[] = {
      {{"c.json", "--plugin", "p.dll"}, "c.json", "p.dll", "", 0},
      {{"c.json", "--plugin", "p.dll", "--lang", "30000"}, "c.json", "p.dll", "", 30000},
      {{"c.json", "--plugin", "p.dll", "--lang", "2147483647"}, "c.json", "p.dll", "", 2147483647},
      {{"c.json", "--no-localizer", "--plugin", "p.dll", "--hostile"},
       "c.json",
       "p.dll",
       "",
       0,
       true,
       true},
      {{"--plugin", "p.dll", "город.json"}, "город.json", "p.dll", "", 0},
      {{"c.json", "--plugin", "p.dll", "--script", "run.txt", "--lang", "en"},
       "c.json",
       "p.dll",
       "run.txt",
       50000},
      {{"--script", "a b.txt", "--plugin", "p.so", "/x/c.json"}, "/x/c.json", "p.so", "a b.txt", 0},
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    ASSERT_TRUE(parsed.options.has_value()) << parsed.error;
    EXPECT_EQ(parsed.options->run_project, r.project);
    EXPECT_EQ(parsed.options->run_plugin, r.plugin);
    EXPECT_EQ(parsed.options->script, r.script);
    EXPECT_EQ(parsed.options->language_offset, r.language);
    EXPECT_EQ(parsed.options->no_localizer, r.no_localizer);
    EXPECT_EQ(parsed.options->hostile, r.hostile);
    EXPECT_TRUE(parsed.options->plugin.empty() && parsed.options->project.empty());
  }
}

TEST(TxhostRunArguments, RefusesWhatMakesNoSense) {
  struct row {
    std::vector<std::string> arguments;
    std::string error;
  };
  const row rows[] = {
      {{"c.json"}, "unexpected argument 'c.json'"},
      {{"--plugin", "p.dll"}, "--plugin PLUGIN needs a PROJECT to run on"},
      {{"c.json", "d.json", "--plugin", "p.dll"}, "unexpected argument 'd.json'"},
      {{"c.json", "--plugin"}, "--plugin needs a PLUGIN"},
      {{"c.json", "--plugin", "p.dll", "--script"}, "--script needs a FILE"},
      {{"c.json", "--plugin", "p.dll", "--script", ""}, "--script needs a FILE"},
      {{"c.json", "--plugin", "a", "--plugin", "b"}, "--plugin given twice"},
      {{"c.json", "--plugin", "p.dll", "--list", "p.dll"},
       "PROJECT --plugin PLUGIN goes without --list and --project"},
      {{"c.json", "--plugin", "p.dll", "--project", "c.json"},
       "PROJECT --plugin PLUGIN goes without --list and --project"},
      {{"--list", "p.dll", "--script", "run.txt"},
       "--script FILE goes with PROJECT --plugin PLUGIN"},
      {{"--script", "run.txt"}, "--script FILE goes with PROJECT --plugin PLUGIN"},
      {{"c.json", "--plugin", "p.dll", "--lang", "-1"},
       "unknown language '-1' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--lang", "2147483648"},
       "unknown language '2147483648' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--lang", "3e4"},
       "unknown language '3e4' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--hostile", "--hostile"}, "--hostile given twice"},
      {{"--list", "p.dll", "--no-localizer"}, "--no-localizer goes with PROJECT --plugin PLUGIN"},
      {{"--project", "c.json", "--hostile"}, "--hostile goes with PROJECT --plugin PLUGIN"},
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    EXPECT_FALSE(parsed.options.has_value()) << r.error;
    EXPECT_EQ(parsed.error, r.error);
  }
}

TEST(TxhostRunArguments, TheUsageKeepsItsFirstLineAndTellsTheRunForm) {
  const std::string usage = txhost_usage();
  EXPECT_TRUE(usage.starts_with("Usage: txhost --list PLUGIN"));
  EXPECT_NE(usage.find("txhost PROJECT --plugin PLUGIN [--script FILE] [--lang ru|en|N]"),
            std::string::npos);
  for (const char* option : {"--no-localizer", "--hostile"}) {
    EXPECT_NE(usage.find(std::string("  ") + option + " "), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace tx::host
