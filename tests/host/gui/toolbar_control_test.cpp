// The toolbar in a window: a click on a button runs its tool, greyed tools refuse with the text
// driver's words and come back when the tool tells so, and the toolbar prints and lists its tools
// exactly as the text host does.
#include <gtest/gtest.h>

#include "dialog_window.h"
#include "tx_host/dialog/script_targets.h"

namespace tx::test {
namespace {

using toolbar_window = dialog_window;

// Clicks the tool `name` names as a script does: found among the buttons' tools, or refused in
// the words a script's error line uses (empty when clicked).
std::string click(host::gui::toolbar_control& toolbar, const std::string& name) {
  const host::dialog::lookup<std::size_t> found = host::dialog::find_tool(toolbar.tools(), name);
  if (!found) return host::dialog::message(found.refused());
  toolbar.click(*found);
  return {};
}

TEST_F(toolbar_window, ClicksRunToolsAndTheButtonsFollowTheirStates) {
  EXPECT_EQ(window_toolbar(), text_toolbar());
  EXPECT_EQ(tools->describe(), host::dialog::describe_tools(toolbar));
  EXPECT_NE(window_toolbar().find("(Отменить) | (Повторить)"), std::string::npos);

  struct click_case {
    const char* tool;
    const char* error;
    std::size_t rows;  // rows shown afterwards; 0: not counted
  };
  const click_case clicks[] = {
      {"Отменить", "tool \"Отменить\" is disabled", 0},
      {"tx_prjrename_tree_redo_tool", "tool \"tx_prjrename_tree_redo_tool\" is disabled", 0},
      {"Сохранить", "no tool \"Сохранить\"", 0},
      {"Свернуть", "", 4},
      {"tx_prjrename_tree_expanded_on_tool", "", 63},
      {"Выделить все", "", 0},
  };
  for (const click_case& c : clicks) {
    SCOPED_TRACE(c.tool);
    EXPECT_EQ(click(*tools, c.tool), c.error);
    pump();
    if (c.rows != 0) {
      EXPECT_EQ(rows->shown_rows(), c.rows);
    }
    EXPECT_EQ(rows->shown_rows() + 1, text_rows().size());
  }
  EXPECT_TRUE(host::dialog::outline_reader(outline).checked(row("Колодцы")));

  // A step to undo: the tool's state hook greys it no more.
  ASSERT_EQ(rows->rename("Колодцы", "Люки", true), "");
  pump();
  EXPECT_EQ(window_toolbar(), text_toolbar());
  EXPECT_NE(window_toolbar().find("‖ Отменить | (Повторить)"), std::string::npos);
  EXPECT_EQ(click(*tools, "Отменить"), "");
  pump();
  EXPECT_EQ(host::dialog::outline_reader(outline).cell(1, row("Колодцы")).value_or(""), "");
  EXPECT_EQ(window_toolbar(), text_toolbar());
  EXPECT_EQ(tools->describe(), host::dialog::describe_tools(toolbar));
  RECT area{};
  screenshot("toolbar", area);
}

}  // namespace
}  // namespace tx::test
