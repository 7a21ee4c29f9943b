// The toolbar in a window: a click on a button runs its tool, greyed tools refuse with the text
// driver's words and come back when the tool tells so, and the toolbar prints and lists its tools
// exactly as the text host does; a caption of any length is read back whole.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "dialog_controls.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"
#include "tx/visitors.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/services/utf.h"

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
  ASSERT_FALSE(rows->rename("Колодцы", "Люки", true));
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

// A tool that has a caption and nothing else.
class captioned_tool final : public single_interface<action_tool_impl> {
 public:
  explicit captioned_tool(std::u16string caption) : caption_(std::move(caption)) {}
  bool image(custom_pointer) override { return false; }
  bool caption(custom_pointer visitor) override {
    call(visitor, &tx_string_visitor_interface_0::visit, caption_.c_str());
    return true;
  }
  bool hint(custom_pointer) override { return false; }
  std::int32_t extra_image_count() override { return 0; }
  bool extra_image(std::int32_t, custom_pointer) override { return false; }
  bool enabled() override { return true; }
  bool visible() override { return true; }
  void invoke() override {}
  void set_view(custom_pointer) override {}

 private:
  std::u16string caption_;
};

struct captioned_tools final : toolkit::with_tools {
  void publish(toolkit::tools_visitor& visitor) override {
    visitor.tool(u"short", short_one.pointer());
    visitor.tool(u"long", long_one.pointer());
  }
  captioned_tool short_one{u"Ж"};
  // Longer than any fixed buffer a toolbar's text would be read into.
  captioned_tool long_one{std::u16string(3000, u'Ж') + u"!"};
};

TEST_F(toolbar_window, CaptionsOfAnyLengthAreReadBackWhole) {
  toolkit::toolbar<captioned_tools, toolbar_impl, void> bar;
  host::gui::metrics m;
  m.font = font;
  m.bold_font = bold;
  host::gui::toolbar_control control(window, bar.pointer(), m);
  const std::vector<host::dialog::tool_values> shown = control.tools();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].caption.value_or(""), "Ж");
  EXPECT_EQ(shown[1].caption.value_or(""), host::to_utf8(std::u16string(3000, u'Ж') + u"!"));
  const host::dialog::lookup<std::size_t> found = host::dialog::find_tool(shown, "long");
  ASSERT_TRUE(found);
  EXPECT_EQ(*found, 1u);
}

}  // namespace
}  // namespace tx::test
