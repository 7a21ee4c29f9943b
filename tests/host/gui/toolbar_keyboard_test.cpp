// The toolbar from the keyboard: with the focus one tool is hot, the arrows, Home and End move
// over the greyed tools to the ones that can be pressed, Space presses the hot tool, and the
// last tool used is hot again when the focus comes back. With access keys, a tool shown as a
// picture tells its key in the tooltip, the text tool marks it in its text, and the toolbar
// still prints and lists what the text host does.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialog_controls.h"
#include "tx_host/services/utf.h"
#include "tx_host/window_logic/access_keys.h"

namespace tx::test {
namespace {

using toolbar_keyboard = dialog_window;

// The command of the toolbar's button `position`, in the order of tools().
int command_at(HWND bar, std::size_t position) {
  TBBUTTON button{};
  std::size_t tool = 0;
  for (LRESULT i = 0; SendMessageW(bar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button)); ++i) {
    if ((button.fsStyle & BTNS_SEP) == 0 && tool++ == position) return button.idCommand;
  }
  return 0;
}

// The raw texts of that button and of its tooltip.
std::string button_text(HWND bar, std::size_t position) {
  wchar_t text[256]{};
  SendMessageW(bar, TB_GETBUTTONTEXTW, command_at(bar, position), reinterpret_cast<LPARAM>(text));
  return host::to_utf8(reinterpret_cast<const char16_t*>(text));
}

std::string tip_text(HWND bar, std::size_t position) {
  wchar_t text[256]{};
  TTTOOLINFOW tip{};
  tip.cbSize = sizeof(tip);
  tip.hwnd = bar;
  tip.uId = static_cast<UINT_PTR>(command_at(bar, position));
  tip.lpszText = text;
  SendMessageW(reinterpret_cast<HWND>(SendMessageW(bar, TB_GETTOOLTIPS, 0, 0)), TTM_GETTEXTW, 256,
               reinterpret_cast<LPARAM>(&tip));
  return host::to_utf8(reinterpret_cast<const char16_t*>(text));
}

TEST_F(toolbar_keyboard, ArrowsSkipGreyedToolsAndSpacePressesTheHotOne) {
  // Развернуть | Свернуть ‖ Выделить все | Снять выделение | Обратить выделение ‖
  // (Отменить) | (Повторить) ‖ Выполнить
  HWND bar = tools->toolbar();
  ASSERT_NE(GetWindowLongPtrW(bar, GWL_STYLE) & WS_TABSTOP, 0);
  EXPECT_FALSE(tools->hot_tool());
  SetFocus(bar);
  struct key_case {
    WPARAM key;
    std::size_t hot;
  };
  const key_case keys[] = {
      {0, 0},         // the focus: the first tool
      {VK_END, 7},    // the last
      {VK_LEFT, 4},   // over Повторить and Отменить, greyed
      {VK_RIGHT, 7},  // and back over them
      {VK_RIGHT, 7},  // the last stays
      {VK_HOME, 0},  {VK_LEFT, 0}, {VK_RIGHT, 1},
  };
  for (const key_case& k : keys) {
    SCOPED_TRACE(k.key);
    if (k.key != 0) SendMessageW(bar, WM_KEYDOWN, k.key, 1);
    EXPECT_EQ(tools->hot_tool(), k.hot);
  }
  // Space presses Свернуть; the dialog manager hands Enter to the toolbar too.
  SendMessageW(bar, WM_KEYDOWN, VK_SPACE, 1);
  pump();
  EXPECT_EQ(rows->shown_rows(), 4u);
  MSG enter{bar, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
  EXPECT_NE(SendMessageW(bar, WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) &
                DLGC_WANTMESSAGE,
            0);
  // Away and back: no tool is hot without the focus, the one last used is hot again.
  SetFocus(rows->list());
  EXPECT_FALSE(tools->hot_tool());
  SetFocus(bar);
  SendMessageW(bar, WM_KEYDOWN, VK_HOME, 1);
  SendMessageW(bar, WM_KEYDOWN, VK_RETURN, 1);
  pump();
  EXPECT_EQ(rows->shown_rows(), 63u);  // Развернуть
  SetFocus(rows->list());
  SetFocus(bar);
  EXPECT_EQ(tools->hot_tool(), 0u);
}

TEST_F(toolbar_keyboard, TooltipsTellTheKeysAndPrintingShowsNoMarkers) {
  const std::vector<host::window_logic::assigned_key> keys =
      host::window_logic::assign_access_keys({tools->key_captions()}).front();
  tools->set_access_keys(keys);
  HWND bar = tools->toolbar();
  // Свернуть, a picture: the key in its tooltip; Выполнить, a text: the key marked in it.
  const std::string hint = host::dialog::tool_values_of(toolbar)[1].hint.value_or("Свернуть");
  EXPECT_EQ(tip_text(bar, 1), hint + " (Alt+С)");
  EXPECT_EQ(button_text(bar, 1), "Свернуть");
  EXPECT_EQ(button_text(bar, 7), "В&ыполнить");
  EXPECT_EQ(window_toolbar(), text_toolbar());
  EXPECT_EQ(tools->describe(), host::dialog::describe_tools(toolbar));
  // A key that is a tool's presses it; a greyed tool's takes the key and does nothing.
  EXPECT_TRUE(tools->press_access_key(u'с'));
  pump();
  EXPECT_EQ(rows->shown_rows(), 4u);
  EXPECT_TRUE(tools->press_access_key(keys[5]->letter));  // Отменить
  EXPECT_FALSE(tools->press_access_key(u'щ'));
}

}  // namespace
}  // namespace tx::test
