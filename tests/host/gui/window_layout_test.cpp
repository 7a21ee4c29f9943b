// The dialog window's layout as a person resizes and uses it: the operation selector's box stands
// still whatever operation is shown, the window may be made lower than it opens, and a column
// width set by hand survives a resize.
#include <gtest/gtest.h>

#include "field_controls.h"
#include "open_dialog.h"
#include "outline_control.h"

namespace tx::test {
namespace {

using window_layout = open_dialog;

RECT rect_of(HWND w) {
  RECT r{};
  GetWindowRect(w, &r);
  return r;
}

TEST_F(window_layout, TheOperationSelectorStandsStillWhateverOperationIsShown) {
  host::gui::dropdown_control* selector = window->operation_selector();
  ASSERT_NE(selector, nullptr);
  const RECT first = rect_of(selector->box());
  const std::size_t operations = selector->items().size();
  ASSERT_GE(operations, 2u);
  for (std::size_t i = operations; i-- > 0;) {
    SCOPED_TRACE(i);
    selector->choose(static_cast<int>(i));
    window->pump();
    const RECT now = rect_of(window->operation_selector()->box());
    EXPECT_EQ(now.left, first.left);
    EXPECT_EQ(now.right, first.right);
  }
}

TEST_F(window_layout, TheWindowMayBeMadeLowerThanItOpensButNotNarrower) {
  const RECT opened = rect_of(window->handle());
  MINMAXINFO limits{};
  SendMessageW(window->handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_LT(limits.ptMinTrackSize.y, opened.bottom - opened.top);
  EXPECT_GT(limits.ptMinTrackSize.y, (opened.bottom - opened.top) / 3);
  EXPECT_EQ(limits.ptMinTrackSize.x, opened.right - opened.left);
}

TEST_F(window_layout, AColumnWidthSetByHandIsKeptWhenTheWindowIsResized) {
  host::gui::outline_control* outline = window->outline();
  ASSERT_NE(outline, nullptr);
  HWND list = outline->list();
  const int set = static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0)) / 2 + 7;
  SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, set);
  const RECT opened = rect_of(window->handle());
  for (const int grow : {120, -60, 0}) {
    SCOPED_TRACE(grow);
    SetWindowPos(window->handle(), nullptr, 0, 0, opened.right - opened.left + grow,
                 opened.bottom - opened.top + grow, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    window->pump();
    EXPECT_EQ(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0), set);
    // The last column takes up the rest of the list's width.
    RECT client{};
    GetClientRect(list, &client);
    EXPECT_EQ(set + SendMessageW(list, LVM_GETCOLUMNWIDTH, 1, 0),
              client.right - GetSystemMetrics(SM_CXVSCROLL));
  }
}

}  // namespace
}  // namespace tx::test
