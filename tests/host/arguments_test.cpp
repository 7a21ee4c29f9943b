// txhost's command line: --list PLUGIN, --project FILE and PROJECT --plugin PLUGIN
// [--script FILE], what each accepts and what makes no sense.
#include "tx_host/txhost/arguments.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace tx::host {
namespace {

TEST(TxhostArguments, AcceptsEveryFormWithItsOptionsInAnyOrder) {
  // txhost_options with every field defaulted, so that a row names only what it sets.
  struct options {
    bool help = false;
    std::string plugin{}, project{};
    std::int32_t language_offset = 0;
    std::string run_project{}, run_plugin{}, script{};
    bool no_localizer = false, hostile = false, gui = false;
    std::string screenshots{};
    bool all = false, timings = false;
  };
  struct row {
    std::vector<std::string> arguments;
    options expected;
  };
  const row rows[] = {
      {{"--list", "p.dll"}, {.plugin = "p.dll"}},
      {{"--list", "p.dll", "--lang", "en"}, {.plugin = "p.dll", .language_offset = 50000}},
      {{"--help"}, {.help = true}},
      {{"--list", "p.dll", "--help"}, {.help = true, .plugin = "p.dll"}},
      {{"--project", "город.json"}, {.project = "город.json"}},
      {{"--project", "c.json", "--list", "p.dll"}, {.plugin = "p.dll", .project = "c.json"}},
      {{"c.json", "--plugin", "p.dll"}, {.run_project = "c.json", .run_plugin = "p.dll"}},
      {{"c.json", "--plugin", "p.dll", "--lang", "2147483647"},
       {.language_offset = 2147483647, .run_project = "c.json", .run_plugin = "p.dll"}},
      {{"c.json", "--no-localizer", "--plugin", "p.dll", "--hostile"},
       {.run_project = "c.json", .run_plugin = "p.dll", .no_localizer = true, .hostile = true}},
      {{"--project", "c.json", "--all", "--timings"},
       {.project = "c.json", .all = true, .timings = true}},
      {{"--timings", "c.json", "--plugin", "p.dll", "--all"},
       {.run_project = "c.json", .run_plugin = "p.dll", .all = true, .timings = true}},
      {{"--script", "a b.txt", "--plugin", "p.so", "/x/c.json"},
       {.run_project = "/x/c.json", .run_plugin = "p.so", .script = "a b.txt"}},
#ifdef _WIN32
      {{"c.json", "--gui", "--plugin", "p.dll", "--screenshots", "кадры"},
       {.run_project = "c.json", .run_plugin = "p.dll", .gui = true, .screenshots = "кадры"}},
#endif
  };
  // Every field, in declaration order, of the options parsed and of the row.
  const auto fields = [](const auto& o) {
    return std::tuple(o.help, o.plugin, o.project, o.language_offset, o.run_project, o.run_plugin,
                      o.script, o.no_localizer, o.hostile, o.gui, o.screenshots, o.all, o.timings);
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    ASSERT_TRUE(parsed.options.has_value()) << parsed.error;
    EXPECT_TRUE(parsed.error.empty());
    EXPECT_EQ(fields(*parsed.options), fields(r.expected)) << testing::PrintToString(r.arguments);
  }
}

TEST(TxhostArguments, RejectsWhatMakesNoSense) {
  struct row {
    std::vector<std::string> arguments;
    std::string error;
  };
  const std::string run_only = " goes with PROJECT --plugin PLUGIN";
  const row rows[] = {
      {{"--lang", "en"}, "--list PLUGIN or --project FILE is required"},
      {{"--project"}, "--project needs a FILE"},
      {{"--project", "--list", "p.dll"}, "--project needs a FILE"},
      {{"--project", "a", "--project", "b"}, "--project given twice"},
      {{"--list", "--lang", "en"}, "--list needs a PLUGIN"},
      {{"--list", ""}, "--list needs a PLUGIN"},
      {{"--list", "p.dll", "--lang"}, "--lang needs ru, en or an offset"},
      {{"--list", "p.dll", "--lang", "EN"}, "unknown language 'EN' (ru, en or an offset)"},
      {{"--list", "a", "--lang", "ru", "--lang", "en"}, "--lang given twice"},
      {{"--list", "a", "extra"}, "unexpected argument 'extra'"},
      {{"--help", "--verbose"}, "unexpected argument '--verbose'"},
      {{"--plugin", "p.dll"}, "--plugin PLUGIN needs a PROJECT to run on"},
      {{"c.json", "d.json", "--plugin", "p.dll"}, "unexpected argument 'd.json'"},
      {{"c.json", "--plugin"}, "--plugin needs a PLUGIN"},
      {{"c.json", "--plugin", "p.dll", "--script"}, "--script needs a FILE"},
      {{"c.json", "--plugin", "p.dll", "--list", "p.dll"},
       "PROJECT --plugin PLUGIN goes without --list and --project"},
      {{"c.json", "--plugin", "p.dll", "--project", "c.json"},
       "PROJECT --plugin PLUGIN goes without --list and --project"},
      {{"--list", "p.dll", "--script", "run.txt"}, "--script FILE" + run_only},
      {{"c.json", "--plugin", "p.dll", "--lang", "-1"},
       "unknown language '-1' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--lang", "2147483648"},
       "unknown language '2147483648' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--lang", "3e4"},
       "unknown language '3e4' (ru, en or an offset)"},
      {{"c.json", "--plugin", "p.dll", "--no-localizer", "--no-localizer"},
       "--no-localizer given twice"},
      {{"--list", "p.dll", "--no-localizer"}, "--no-localizer" + run_only},
      {{"--list", "p.dll", "--gui"}, "--gui" + run_only},
      {{"c.json", "--plugin", "p.dll", "--gui", "--gui"}, "--gui given twice"},
      {{"c.json", "--plugin", "p.dll", "--screenshots", "shots"},
       "--screenshots DIR goes with --gui"},
#ifndef _WIN32
      {{"c.json", "--plugin", "p.dll", "--gui"}, "--gui shows a window in the Windows build only"},
#endif
      {{"--project", "c.json", "--hostile"}, "--hostile" + run_only},
      {{"--list", "p.dll", "--all"}, "--all goes with --project FILE or PROJECT --plugin PLUGIN"},
      {{"--timings"}, "--timings goes with --project FILE or PROJECT --plugin PLUGIN"},
      {{"--project", "c.json", "--all", "--all"}, "--all given twice"},
  };
  for (const row& r : rows) {
    const parsed_arguments parsed = parse_arguments(r.arguments);
    EXPECT_FALSE(parsed.options.has_value()) << r.error;
    EXPECT_EQ(parsed.error, r.error);
  }
}

TEST(TxhostArguments, TheUsageTellsTheRunFormAndItsOptions) {
  const std::string usage = txhost_usage();
  EXPECT_NE(usage.find("txhost PROJECT --plugin PLUGIN [--script FILE] [--lang ru|en|N]"),
            std::string::npos);
  for (const char* option : {"--no-localizer", "--hostile", "--all", "--timings"}) {
    EXPECT_NE(usage.find(std::string("  ") + option + " "), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace tx::host
