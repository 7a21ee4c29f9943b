// The dialog window's loops: a quit request reaches the loop outside the dialog, and what the
// plug-in tells while a nested loop runs (a message box's, inside the plug-in's call that told
// it) is read only once the window's own loop has the message in hand again.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "dialog_controls.h"
#include "open_dialog.h"
#include "toolkit/docker.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/gui/window_surface.h"

namespace tx::test {
namespace {

class window_loop : public open_dialog {
 protected:
  // Runs the tool `id` of the dialog's toolbar as the plug-in's own code would, not through the
  // window: the plug-in then tells the window's views what changed.
  bool run_tool(const std::string& id) {
    leaves found;
    host::dialog::walk(frame->widget().layout(), found, host::dialog::walk_scope::shown);
    for (const host::dialog::tool_entry& t : host::dialog::tools_of(found.toolbar)) {
      if (t.id == id) return host::call(t.tool, &tx_action_tool_interface_0::invoke), true;
    }
    return false;
  }
};

TEST_F(window_loop, AQuitRequestEndsTheDialogsLoopAndIsLeftForTheLoopOutside) {
  PostQuitMessage(7);
  EXPECT_EQ(window->run_modal(), -1);
  EXPECT_FALSE(window->closed_with());
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(window_loop, ChangesToldInANestedLoopAreReadByTheWindowsOwnLoop) {
  host::gui::outline_control* outline = window->outline();
  ASSERT_NE(outline, nullptr);
  const std::size_t before = outline->shown_rows();
  ASSERT_TRUE(run_tool("tx_prjrename_tree_expanded_off_tool"));
  // A message box's loop, as it runs inside the plug-in's call: it delivers every message.
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  EXPECT_EQ(outline->shown_rows(), before);
  window->pump();
  EXPECT_LT(outline->shown_rows(), before);  // the collapsed rows are gone
  EXPECT_EQ(outline->shown_rows(), 4u);      // the four top-level rows
}

}  // namespace
}  // namespace tx::test
