// Access keys in the dialog window, typed as a person types them (Alt goes down, then the
// keyboard layout's character) through the window's own loop: a tool's key presses the tool, a
// label's key takes the focus to its field, a check box's ticks it, a
// button's presses it; Enter on the toolbar presses its tool, never a button. The keys of the
// controls that stay do not change with the operation, and the window prints no marker.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dialog_controls.h"
#include "field_controls.h"
#include "open_dialog.h"
#include "toolkit/button_box.h"
#include "toolkit/docker.h"
#include "tx_host/gui/window_surface.h"
#include "tx_host/services/utf.h"

namespace tx::test {
namespace {

class access_keys : public open_dialog {
 protected:
  // What a person's Alt and `key` send the focused window.
  void alt(char16_t key) {
    HWND focus = GetFocus();
    ASSERT_NE(focus, nullptr);
    PostMessageW(focus, WM_SYSKEYDOWN, VK_MENU, 0x20380001);
    PostMessageW(focus, WM_SYSCHAR, key, 0x20000001);
    window->pump();
  }

  // The texts of the dialog's windows that show an access key (a static without prefixes shows
  // its '&'), sorted.
  std::vector<std::string> marked() const {
    std::vector<std::string> texts;
    EnumChildWindows(
        window->handle(),
        [](HWND child, LPARAM found) -> BOOL {
          wchar_t text[256]{};
          GetWindowTextW(child, text, 256);
          const std::string shown = host::to_utf8(reinterpret_cast<const char16_t*>(text));
          wchar_t kind[16]{};
          GetClassNameW(child, kind, 16);
          const bool literal = std::wstring_view(kind) == L"Static" &&
                               (GetWindowLongW(child, GWL_STYLE) & SS_NOPREFIX) != 0;
          if (shown.find('&') != std::string::npos && !literal) {
            reinterpret_cast<std::vector<std::string>*>(found)->push_back(shown);
          }
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&texts));
    std::sort(texts.begin(), texts.end());
    return texts;
  }
};

TEST_F(access_keys, AltAndAKeyPressesToolsAndButtonsAndReachesFields) {
  // The buttons and the operation's label keep their keys whatever operation is shown.
  EXPECT_EQ(marked(), (std::vector<std::string>{
                          "&Закрыть", "&Применить", "&Тип:", "&Учитывать регистр ",
                          "Зам&енить на:", "Замен&ять:", "Н&айти:", "Слово &целиком "}));
  const std::string printed = window->render();
  EXPECT_EQ(printed.find('&'), std::string::npos) << printed;
  EXPECT_NE(printed.find("[ Применить ] [ Закрыть ]"), std::string::npos) << printed;

  host::gui::outline_control& outline = *window->outline();
  SetFocus(outline.list());
  alt(u'С');  // Свернуть, typed with Shift
  EXPECT_EQ(outline.shown_rows(), 4u);
  alt(u'у');  // the check box
  EXPECT_NE(window->render().find("[x] Учитывать регистр"), std::string::npos);
  alt(u'т');  // the operation's label: its drop-down
  EXPECT_EQ(GetFocus(), window->fields()[0]->box());

  window->operation_selector()->choose(1);
  window->pump();
  EXPECT_EQ(marked(), (std::vector<std::string>{"&Закрыть", "&Применить", "&Тип:", "Р&егистр:"}));

  // Tab from the panel's last field reaches the toolbar, where the tool last used is hot; Enter
  // there presses the hot tool and leaves the dialog open.
  SetFocus(window->fields().back()->box());
  PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
  window->pump();
  HWND bar = window->toolbars().front()->toolbar();
  ASSERT_EQ(GetFocus(), bar);
  EXPECT_EQ(window->toolbars().front()->hot_tool(), 1u);  // Свернуть
  PostMessageW(bar, WM_KEYDOWN, VK_HOME, 1);
  PostMessageW(bar, WM_KEYDOWN, VK_RETURN, 1);
  window->pump();
  EXPECT_EQ(outline.shown_rows(), 63u);  // Развернуть
  EXPECT_FALSE(window->closed_with());

  alt(u'з');
  EXPECT_EQ(window->closed_with(), 1);  // Закрыть
}

}  // namespace
}  // namespace tx::test
