// The driver acts on the dialog as a user would: each command's effect on the elements, what a
// user could not do (an error, nothing changed), and the buttons that close the dialog.
#include <gtest/gtest.h>

#include <functional>

#include "test_dialog.h"
#include "tx_host/dialog/dialog_driver.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/msgs.h"

namespace tx::test {
namespace {

using host::dialog::command_outcome;
using host::dialog::dialog_driver;
using host::dialog::parse_line;

// Runs each line on the dialog; the outcome of the last.
command_outcome run(test_dialog& d, const std::vector<std::string>& lines) {
  const dialog_driver driver(d.frame.pointer(), d.buttons.pointer(), 0);
  command_outcome last;
  for (const std::string& line : lines) {
    const auto parsed = parse_line(line, 1);
    EXPECT_TRUE(parsed.parsed.has_value()) << line;
    if (!parsed.parsed) return last;
    last = driver.run(*parsed.parsed);
  }
  return last;
}

TEST(DialogDriver, CommandsChangeTheElementsAsAUserWould) {
  struct row {
    std::vector<std::string> lines;
    std::function<bool(test_widget&)> done;
  };
  const row rows[] = {
      {{"op 2"},
       [](test_widget& w) { return w.selector.selection() == 1 && w.panels.shown() == 2; }},
      {{"op \"Изменить регистр\"", "op 1"}, [](test_widget& w) { return w.panels.shown() == 1; }},
      {{"set 2 \"Город Н\""}, [](test_widget& w) { return w.find.value() == u"Город Н"; }},
      {{"set Найти: x", "set Найти \"\""}, [](test_widget& w) { return w.find.value().empty(); }},
      {{"set \"Учитывать регистр\" on"}, [](test_widget& w) { return w.match_case.is_checked(); }},
      {{"set 3 yes", "set 3 0"}, [](test_widget& w) { return !w.match_case.is_checked(); }},
      {{"op 2", "set Регистр \"ВЕРХНИЙ РЕГИСТР\""},
       [](test_widget& w) { return w.case_mode.selection() == 2; }},
      {{"op 2", "set 2 2"}, [](test_widget& w) { return w.case_mode.selection() == 1; }},
      {{"op 2", "set \"N =\" -3"}, [](test_widget& w) { return w.count.current() == 0; }},
      {{"op 2", "set 3 +42"}, [](test_widget& w) { return w.count.current() == 42; }},
      {{"tick \"Сцены 2D / Город\""}, [](test_widget& w) { return w.city.checked; }},
      {{"tick Дороги"}, [](test_widget& w) { return w.roads.checked && !w.city.checked; }},
      {{"tick \"Сцены 2D / {1} / {2}\""}, [](test_widget& w) { return w.rivers.checked; }},
      {{"tick Реки", "tick Реки", "untick Реки"}, [](test_widget& w) { return !w.rivers.checked; }},
      {{"select Город"}, [](test_widget& w) { return w.city.selected; }},
      {{"select Город", "deselect Город"}, [](test_widget& w) { return !w.city.selected; }},
      {{"collapse Город"}, [](test_widget& w) { return !w.city.expanded; }},
      {{"expand \"Сцены 3D\"", "tick Рельеф"}, [](test_widget& w) { return w.relief.checked; }},
      {{"rename Дороги Улицы"},
       [](test_widget& w) { return w.roads.has_new_name && w.roads.new_name == u"Улицы"; }},
      {{"click test_expand_tool"}, [](test_widget& w) { return w.scenes3d.expanded; }},
      {{"click Свернуть"}, [](test_widget& w) { return !w.city.expanded && !w.scenes.expanded; }},
  };
  for (const row& r : rows) {
    test_dialog d;
    const command_outcome outcome = run(d, r.lines);
    EXPECT_EQ(outcome.error, "") << r.lines.back();
    EXPECT_FALSE(outcome.closed_with.has_value()) << r.lines.back();
    EXPECT_TRUE(r.done(d.widget())) << r.lines.back();
  }
}

TEST(DialogDriver, WhatAUserCouldNotDoIsAnErrorAndChangesNothing) {
  struct row {
    std::vector<std::string> lines;
    std::string error;
    std::function<void(test_widget&)> setup = [](test_widget&) {};
  };
  const row rows[] = {
      {{"op 3"}, "no operation \"3\""},
      {{"op Удалить"}, "no operation \"Удалить\""},
      {{"set 4 x"}, "no field 4"},
      {{"set Заменить x"}, "no field \"Заменить\""},
      {{"set 3 maybe"}, "\"maybe\" is neither on nor off"},
      {{"op 2", "set 2 Никакой"}, "field \"2\" has no item \"Никакой\""},
      {{"op 2", "set 2 4"}, "field \"2\" has no item \"4\""},
      {{"op 2", "set 3 seven"}, "\"seven\" is not a whole number"},
      {{"op 2", "set 3 99999999999"}, "\"99999999999\" is not a whole number"},
      {{"op 2", "set 3 1"},
       "field \"3\" is disabled",
       [](test_widget& w) { w.count.set_enabled(false); }},
      {{"set Найти x"},
       "more than one field is captioned \"Найти\": give its number",
       [](test_widget& w) { w.match_case.set_caption(151); }},
      {{"tick Рельеф"}, "row \"Рельеф\" is hidden: \"Сцены 3D\" is collapsed"},
      {{"tick \"Сцены 3D / Рельеф\""},
       "row \"Сцены 3D / Рельеф\" is hidden: \"Сцены 3D\" is collapsed"},
      {{"tick Озёра"}, "no row \"Озёра\""},
      {{"tick \"Город / Дороги\""}, "no row \"Город / Дороги\""},
      {{"tick \"Сцены 2D / {9}\""}, "no row \"Сцены 2D / {9}\""},
      {{"tick Дороги"},
       "more than one row answers to \"Дороги\": give its path, {N} for the N-th",
       [](test_widget& w) { w.empty.add(u"Дороги"); }},
      {{"tick \"Сцены 2D\""}, "the box of row \"Сцены 2D\" cannot be changed"},
      {{"expand Дороги"}, "row \"Дороги\" has no rows under it"},
      {{"rename \"Сцены 2D\" x"}, "row \"Сцены 2D\" has no cell that can be edited"},
      {{"click test_undo_tool"}, "tool \"test_undo_tool\" is disabled"},
      {{"click Отменить"}, "tool \"Отменить\" is disabled"},
      {{"click test_collapse_tool"},
       "tool \"test_collapse_tool\" is hidden",
       [](test_widget& w) { w.bar.tools().collapse.set_visible(false); }},
      {{"click Выполнить"}, "no tool \"Выполнить\""},
      {{"press 3"}, "no button \"3\""},
      {{"press ОК"}, "no button \"ОК\""},
      {{"tick Дороги"},
       "the dialog has no outline",
       [](test_widget& w) { w.root.set_cell(2, custom_pointer{}); }},
      {{"op 1"},
       "the dialog has no operation selector",
       [](test_widget& w) { w.operations.set_cell(1, custom_pointer{}); }},
  };
  const auto shown = [](test_dialog& d) {
    return host::dialog::render_dialog(d.frame.pointer(), d.buttons.pointer(),
                                       host::dialog::vocabulary_for(0));
  };
  for (const row& r : rows) {
    test_dialog d;
    r.setup(d.widget());
    const std::vector<std::string> before_last(r.lines.begin(), r.lines.end() - 1);
    EXPECT_EQ(run(d, before_last).error, "") << r.lines.back();
    const std::string before = shown(d);
    const command_outcome outcome = run(d, {r.lines.back()});
    EXPECT_EQ(outcome.error, r.error) << r.lines.back();
    EXPECT_FALSE(outcome.closed_with.has_value());
    EXPECT_EQ(shown(d), before) << r.lines.back();
  }
}

TEST(DialogDriver, ErrorsAfterEarlierCommandsKeepWhatTheyDid) {
  test_dialog d;
  const command_outcome outcome = run(d, {"op 2", "set 3 seven"});
  EXPECT_EQ(outcome.error, "\"seven\" is not a whole number");
  EXPECT_EQ(d.widget().panels.shown(), 2);
  EXPECT_EQ(d.widget().count.current(), 0);
}

TEST(DialogDriver, ButtonsCloseTheDialogWhenTheirPressAllowsIt) {
  struct row {
    std::vector<std::string> lines;
    std::optional<std::int32_t> closed_with;
    int accepted;
    std::size_t warnings;
  };
  const row rows[] = {
      {{"accept"}, std::nullopt, 0, 1},
      {{"press Применить"}, std::nullopt, 0, 1},
      {{"rename Дороги Улицы", "accept"}, 0, 1, 0},
      {{"rename Дороги Улицы", "press 1"}, 0, 1, 0},
      {{"rename Дороги Улицы", "close"}, 1, 0, 0},
      {{"press Закрыть"}, 1, 0, 0},
      {{"press 2"}, 1, 0, 0},
      {{"closebox"}, -1, 0, 0},
  };
  for (const row& r : rows) {
    tx_host_msgs_clear();
    test_dialog d;
    const command_outcome outcome = run(d, r.lines);
    EXPECT_EQ(outcome.error, "") << r.lines.back();
    EXPECT_EQ(outcome.closed_with, r.closed_with) << r.lines.back();
    EXPECT_EQ(d.accepted, r.accepted) << r.lines.back();
    EXPECT_EQ(tx_host_msgs_warning_count(), r.warnings) << r.lines.back();
  }
  tx_host_msgs_clear();
}

TEST(DialogDriver, PrintAndHelpAnswerWithText) {
  test_dialog d;
  EXPECT_EQ(run(d, {"print"}).output,
            host::dialog::render_dialog(d.frame.pointer(), d.buttons.pointer(),
                                        host::dialog::vocabulary_for(0)));
  EXPECT_EQ(run(d, {"help"}).output, host::dialog::command_summary());
}

TEST(DialogDriver, TheAcceptingAndClosingButtonsAreKnownByTheHostsCaptions) {
  using host::dialog::button_role;
  using host::dialog::role_of;
  EXPECT_EQ(role_of("ОК", 0), button_role::accept);
  EXPECT_EQ(role_of("Применить", 0), button_role::accept);
  EXPECT_EQ(role_of("OK", 50000), button_role::accept);
  EXPECT_EQ(role_of("Apply", 50000), button_role::accept);
  EXPECT_EQ(role_of("Отмена", 0), button_role::close);
  EXPECT_EQ(role_of("Close", 50000), button_role::close);
  EXPECT_EQ(role_of("Close", 0), button_role::other);
  EXPECT_EQ(role_of("Справка", 0), button_role::other);
  EXPECT_EQ(role_of("", 0), button_role::other);
}

}  // namespace
}  // namespace tx::test
