// How a script's command finds its target among what a host shows, the same for the text host
// and the window: by number or caption, text before number, id before caption, and every
// refusal in the words a script's error line uses.
#include "tx_host/dialog/script_targets.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tx::host::dialog {
namespace {

// What a lookup says: the position found ("#2"), or the refusal's sentence.
template <class T>
std::string outcome(const lookup<T>& found) {
  if (!found) return message(found.refused());
  // Built by appending: mingw's g++ 12 at -O3 warns falsely on a literal + std::string.
  std::string position(1, '#');
  return position.append(std::to_string(*found));
}

TEST(ScriptTargets, FieldsAreFoundByNumberOrCaptionAndRefusedAsAPersonWouldBe) {
  const std::vector<field_facts> fields{
      {"Find:", true}, {"Replace:", true}, {"Case", false}, {"Prefix", true}, {"Prefix", true}};
  struct row {
    const char* name;
    const char* expected;
  };
  const row rows[] = {
      {"1", "#0"},
      {"Find", "#0"},
      {"Replace:", "#1"},
      {"Replace :", "#1"},
      {"5", "#4"},
      {"6", "no field 6"},
      {"0", "no field \"0\""},
      {"Nothing", "no field \"Nothing\""},
      {"Prefix", "more than one field is captioned \"Prefix\": give its number"},
      {"Case", "field \"Case\" is disabled"},
      {"3", "field \"3\" is disabled"},
  };
  for (const row& r : rows) {
    EXPECT_EQ(outcome(find_field(fields, r.name)), r.expected) << r.name;
  }
  EXPECT_EQ(outcome(find_field({}, "1")), "no field 1");
}

TEST(ScriptTargets, ItemsAndOperationsAreNamedByTextBeforeNumber) {
  const std::vector<std::string> items{"Upper", "2", "Lower"};
  struct row {
    const char* value;
    const char* expected;
  };
  const row rows[] = {
      {"Lower", "#2"},
      {"2", "#1"},  // an item whose text is a number is found by its text
      {"3", "#2"},
      {"1", "#0"},
      {"4", "field \"Case\" has no item \"4\""},
      {"lower", "field \"Case\" has no item \"lower\""},
  };
  for (const row& r : rows) EXPECT_EQ(outcome(item_value(items, "Case", r.value)), r.expected);

  EXPECT_EQ(outcome(find_operation(list_facts{items, true}, "Upper")), "#0");
  EXPECT_EQ(outcome(find_operation(list_facts{items, true}, "Erase")), "no operation \"Erase\"");
  EXPECT_EQ(outcome(find_operation(list_facts{items, false}, "Upper")),
            "the operation selector is disabled");
  EXPECT_EQ(outcome(find_operation(std::nullopt, "Upper")), "the dialog has no operation selector");
}

TEST(ScriptTargets, SwitchesAndNumbersAreReadOrRefused) {
  EXPECT_EQ(outcome(switch_value("yes")), "#1");
  EXPECT_EQ(outcome(switch_value("0")), "#0");
  EXPECT_EQ(outcome(switch_value("maybe")), "\"maybe\" is neither on nor off");
  EXPECT_EQ(outcome(number_value("-3")), "#-3");
  EXPECT_EQ(outcome(number_value("3x")), "\"3x\" is not a whole number");
  EXPECT_EQ(outcome(number_value("99999999999")), "\"99999999999\" is not a whole number");
}

TEST(ScriptTargets, ToolsAreFoundByIdBeforeCaptionAndMustBeShownAndEnabled) {
  auto tool = [](const char* id, const char* caption, bool enabled, bool visible) {
    tool_values t;
    t.id = id;
    if (caption != nullptr) t.caption = caption;
    t.enabled = enabled;
    t.visible = visible;
    return t;
  };
  const std::vector<tool_values> tools{
      tool("undo", "Undo", false, true), tool("redo", "undo", true, true),
      tool("hidden", "Hidden", true, false), tool("plain", nullptr, true, true)};
  struct row {
    const char* name;
    const char* expected;
  };
  const row rows[] = {
      {"redo", "#1"},
      {"undo", "tool \"undo\" is disabled"},  // the id wins over another tool's caption
      {"Undo", "tool \"Undo\" is disabled"},
      {"Hidden", "tool \"Hidden\" is hidden"},
      {"plain", "#3"},
      {"Plain", "no tool \"Plain\""},
      {"", "no tool \"\""},
  };
  for (const row& r : rows) EXPECT_EQ(outcome(find_tool(tools, r.name)), r.expected) << r.name;
}

TEST(ScriptTargets, ButtonsAreFoundByCaptionNumberOrRole) {
  constexpr std::int32_t kRussian = 0;
  const std::vector<std::string> shown{"Справка", "2", "Применить", "Закрыть"};
  auto press = [](verb what, std::vector<std::string> arguments = {}) {
    command c;
    c.what = what;
    c.arguments = std::move(arguments);
    return c;
  };
  EXPECT_EQ(outcome(find_button(shown, press(verb::press, {"Закрыть"}), kRussian)), "#3");
  EXPECT_EQ(outcome(find_button(shown, press(verb::press, {"2"}), kRussian)), "#1");
  EXPECT_EQ(outcome(find_button(shown, press(verb::press, {"3"}), kRussian)), "#2");
  EXPECT_EQ(outcome(find_button(shown, press(verb::press, {"5"}), kRussian)), "no button \"5\"");
  EXPECT_EQ(outcome(find_button(shown, press(verb::accept), kRussian)), "#2");
  EXPECT_EQ(outcome(find_button(shown, press(verb::close), kRussian)), "#3");
  const std::vector<std::string> help_only{"Справка"};
  EXPECT_EQ(outcome(find_button(help_only, press(verb::accept), kRussian)),
            "the dialog has no accepting button");
  EXPECT_EQ(outcome(find_button(help_only, press(verb::close), kRussian)),
            "the dialog has no closing button");
}

}  // namespace
}  // namespace tx::host::dialog
