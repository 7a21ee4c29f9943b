// The outline as a tree-list in a window: each script action, sent as input to the list view,
// changes the plug-in's rows as the text driver's command does, refuses what it refuses with the
// same words, and the list then prints exactly what the text host prints.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "dialog_controls.h"
#include "tx_host/services/utf.h"

namespace tx::test {
namespace {

using outline_window = dialog_window;

// What a script's error line says of `refused`; empty when the action was done.
std::string said(const std::optional<host::dialog::refusal>& refused) {
  return refused ? host::dialog::message(*refused) : std::string();
}

enum class act { tick, untick, select, deselect, expand, collapse, rename, rename_esc };

struct step {
  act what;
  const char* address;
  const char* text;   // for rename
  const char* error;  // what the action answers; empty when done
};

std::string joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const std::string& line : lines) all += line + "\n";
  return all;
}

// The printed line of the one shown row whose first cell ends with `caption`.
std::string line_of(const std::vector<std::string>& lines, const std::string& caption) {
  for (const std::string& line : lines) {
    std::string first = line.substr(0, line.find(" │"));
    while (!first.empty() && first.back() == ' ') first.pop_back();
    if (first.size() >= caption.size() + 1 &&
        first.compare(first.size() - caption.size() - 1, std::string::npos, " " + caption) == 0) {
      return line;
    }
  }
  return {};
}

TEST_F(outline_window, ActionsChangeTheRowsAsTheTextDriverAndPrintAsTheTextHost) {
  const step steps[] = {
      {act::tick, "Магистрали", "", ""},
      {act::untick, "Двумерные сцены / Центр города / Улицы / Магистрали", "", ""},
      {act::collapse, "Улицы", "", ""},
      {act::tick, "Переулки", "", "row \"Переулки\" is hidden: \"Улицы\" is collapsed"},
      {act::expand, "Жилые", "", ""},
      {act::expand, "Колодцы", "", "row \"Колодцы\" has no rows under it"},
      {act::expand, "Улицы", "", ""},
      {act::select, "Переулки", "", ""},
      {act::select, "Водоёмы", "", ""},
      {act::select, "Колодцы", "", ""},
      {act::deselect, "Водоёмы", "", ""},
      {act::tick, "Озёра", "", "no row \"Озёра\""},
      {act::tick, "Рамка", "",
       "more than one row answers to \"Рамка\": give its path, {N} for the N-th"},
      {act::tick, "Компоновки / Лист А3 — центр / Рамка", "", ""},
      {act::rename, "Магистрали", "Проспекты", ""},
      {act::rename_esc, "Переулки", "Проезды", ""},
      {act::rename, "Колодцы", "Люки «ливнёвки»", ""},
      {act::rename, "Двумерные сцены", "Сцены",
       "row \"Двумерные сцены\" has no cell that can be edited"},
      {act::collapse, "Центр города", "", ""},
      {act::expand, "Центр города", "", ""},
  };
  const host::dialog::outline_reader reader(outline);
  for (const step& s : steps) {
    SCOPED_TRACE(s.address);
    const tx_custom_pointer target = row(s.address);
    const std::string before = reader.cell(1, target).value_or("");
    std::string error;
    switch (s.what) {
      case act::tick:
      case act::untick:
        error = said(rows->tick(s.address, s.what == act::tick));
        break;
      case act::select:
      case act::deselect:
        error = said(rows->select(s.address, s.what == act::select));
        break;
      case act::expand:
      case act::collapse:
        error = said(rows->expand(s.address, s.what == act::expand));
        break;
      case act::rename:
      case act::rename_esc:
        error = said(rows->rename(s.address, s.text, s.what == act::rename));
        break;
    }
    pump();
    EXPECT_EQ(error, s.error);
    if (error.empty()) {
      switch (s.what) {
        case act::tick:
        case act::untick:
          EXPECT_EQ(reader.checked(target), s.what == act::tick);
          break;
        case act::select:
        case act::deselect:
          EXPECT_EQ(reader.selected(target), s.what == act::select);
          break;
        case act::expand:
        case act::collapse:
          EXPECT_EQ(reader.expanded(target), s.what == act::expand);
          break;
        case act::rename:
          EXPECT_EQ(reader.cell(1, target), s.text);
          break;
        case act::rename_esc:
          EXPECT_EQ(reader.cell(1, target).value_or(""), before);
          break;
      }
    }
    EXPECT_EQ(joined(window_rows()), joined(text_rows()));
    EXPECT_EQ(rows->shown_rows() + 1, text_rows().size());  // the header line
  }
}

TEST_F(outline_window, ATickOnASelectedRowTicksEverySelectedRow) {
  for (const char* address : {"Переулки", "Водоёмы", "Колодцы"}) {
    ASSERT_FALSE(rows->select(address, true));
  }
  ASSERT_FALSE(rows->tick("Водоёмы", true));
  pump();
  RECT area{};
  screenshot("selection", area);
  const host::dialog::outline_reader reader(outline);
  for (const char* address : {"Переулки", "Водоёмы", "Колодцы"}) {
    EXPECT_TRUE(reader.checked(row(address))) << address;
  }
  EXPECT_FALSE(reader.checked(row("Магистрали")));
  // A row not selected ticks alone.
  ASSERT_FALSE(rows->tick("Магистрали", true));
  EXPECT_TRUE(reader.checked(row("Магистрали")));
  EXPECT_EQ(joined(window_rows()), joined(text_rows()));
}

TEST_F(outline_window, KeysActOnTheFocusedRow) {
  struct key_case {
    UINT message;
    WPARAM key;
    const char* focused;  // the row focused before the key
    const char* line;     // the printed line of the row afterwards must contain this
    const char* row;      // ... the row whose line
  };
  const key_case cases[] = {
      {WM_CHAR, L'-', "Улицы", "▸ [ ] Улицы", "Улицы"},
      {WM_CHAR, L'+', "Улицы", "▾ [ ] Улицы", "Улицы"},
      {WM_KEYDOWN, VK_LEFT, "Улицы", "▸ [ ] Улицы", "Улицы"},
      {WM_KEYDOWN, VK_RIGHT, "Улицы", "▾ [ ] Улицы", "Улицы"},
      {WM_KEYDOWN, VK_SPACE, "Переулки", "[x] Переулки", "Переулки"},
      // Left on a row without rows under it goes to the row above, which is then selected.
      {WM_KEYDOWN, VK_LEFT, "Переулки", ">", "Улицы"},
      // A letter goes to the next row whose name starts with it.
      {WM_CHAR, L'к', "Улицы", ">", "Кварталы"},
  };
  for (const key_case& c : cases) {
    SCOPED_TRACE(c.focused);
    const host::dialog::outline_reader reader(outline);
    const auto position = [&](const char* address) {
      const std::vector<std::string> lines = window_rows();
      const auto at = std::find(lines.begin(), lines.end(), line_of(lines, address));
      return static_cast<WPARAM>(at - lines.begin() - 1);
    };
    LVITEMW focus{};
    focus.stateMask = LVIS_FOCUSED;
    focus.state = LVIS_FOCUSED;
    SendMessageW(rows->list(), LVM_SETITEMSTATE, position(c.focused),
                 reinterpret_cast<LPARAM>(&focus));
    SendMessageW(rows->list(), c.message, c.key, 1);  // one key stroke
    pump();
    const std::string line = line_of(window_rows(), c.row);
    EXPECT_NE(line.find(c.line), std::string::npos) << line;
    EXPECT_EQ(joined(window_rows()), joined(text_rows()));
  }
}

TEST_F(outline_window, ADoubleClickOnANewNameEditsItInPlace) {
  const std::vector<std::string> lines = window_rows();
  const auto at = std::find(lines.begin(), lines.end(), line_of(lines, "Переулки"));
  const int position = static_cast<int>(at - lines.begin() - 1);
  RECT cell{LVIR_LABEL, 1, 0, 0};
  ASSERT_TRUE(
      SendMessageW(rows->list(), LVM_GETSUBITEMRECT, position, reinterpret_cast<LPARAM>(&cell)));
  const LPARAM where = MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
  SendMessageW(rows->list(), WM_LBUTTONDOWN, MK_LBUTTON, where);
  SendMessageW(rows->list(), WM_LBUTTONUP, 0, where);
  SendMessageW(rows->list(), WM_LBUTTONDBLCLK, MK_LBUTTON, where);
  HWND edit = FindWindowExW(rows->list(), nullptr, L"EDIT", nullptr);
  ASSERT_NE(edit, nullptr);
  for (const wchar_t c : std::wstring(L"Проезды")) SendMessageW(edit, WM_CHAR, c, 0);
  RECT area{};
  screenshot("editor", area);
  SendMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
  pump();
  EXPECT_EQ(FindWindowExW(rows->list(), nullptr, L"EDIT", nullptr), nullptr);
  EXPECT_EQ(host::dialog::outline_reader(outline).cell(1, row("Переулки")), "Проезды");
}

TEST_F(outline_window, TheEditorKeepsOrDropsWhatWasTypedAsItIsLeft) {
  enum class leave { enter, escape, focus_elsewhere, scroll };
  struct leave_case {
    leave how;
    const wchar_t* typed;
    bool kept;
  };
  const leave_case cases[] = {
      {leave::enter, L"Проезды", true},
      {leave::escape, L"Тупики", false},
      {leave::focus_elsewhere, L"Аллеи", true},
      {leave::scroll, L"Линии", true},
  };
  const host::dialog::outline_reader reader(outline);
  for (const leave_case& c : cases) {
    SCOPED_TRACE(static_cast<int>(c.how));
    const std::string before = reader.cell(1, row("Переулки")).value_or("");
    const std::vector<std::string> lines = window_rows();
    const auto at = std::find(lines.begin(), lines.end(), line_of(lines, "Переулки"));
    RECT cell{LVIR_LABEL, 1, 0, 0};
    ASSERT_TRUE(SendMessageW(rows->list(), LVM_GETSUBITEMRECT, at - lines.begin() - 1,
                             reinterpret_cast<LPARAM>(&cell)));
    SendMessageW(rows->list(), WM_LBUTTONDBLCLK, MK_LBUTTON,
                 MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2));
    HWND edit = FindWindowExW(rows->list(), nullptr, L"EDIT", nullptr);
    ASSERT_NE(edit, nullptr);
    SendMessageW(edit, WM_CHAR, VK_BACK, 0);
    for (const wchar_t* letter = c.typed; *letter != L'\0'; ++letter) {
      SendMessageW(edit, WM_CHAR, *letter, 0);
    }
    switch (c.how) {
      case leave::enter:
        SendMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
        break;
      case leave::escape:
        SendMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 0);
        break;
      case leave::focus_elsewhere:
        SetFocus(rows->list());
        break;
      case leave::scroll:
        SendMessageW(rows->list(), WM_VSCROLL, SB_LINEDOWN, 0);
        break;
    }
    pump();
    EXPECT_EQ(FindWindowExW(rows->list(), nullptr, L"EDIT", nullptr), nullptr);
    const std::string typed = host::to_utf8(reinterpret_cast<const char16_t*>(c.typed));
    EXPECT_EQ(reader.cell(1, row("Переулки")).value_or(""), c.kept ? typed : before);
    EXPECT_EQ(joined(window_rows()), joined(text_rows()));
  }
}

TEST_F(outline_window, RowsDrawnAfterCollapseAndExpandAreTheRowsDrawnAfresh) {
  struct splice {
    const char* row;
    bool expand;
  };
  // Rows with and without expanders and boxes move up and down under each other.
  const splice splices[] = {
      {"Двумерные сцены / Центр города / Улицы", false},
      {"Двумерные сцены / Центр города", false},
      {"Двумерные сцены / Центр города", true},
      {"Двумерные сцены / Центр города / Кварталы", false},
      {"Двумерные сцены", false},
      {"Двумерные сцены", true},
  };
  for (const splice& s : splices) {
    SCOPED_TRACE(s.row);
    ASSERT_FALSE(rows->expand(s.row, s.expand));
    pump();
    RECT area{};
    const std::vector<COLORREF> spliced = screenshot("spliced", area);
    RedrawWindow(window, nullptr, nullptr,
                 RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    pump();
    const std::vector<COLORREF> afresh = screenshot("afresh", area);
    ASSERT_EQ(spliced.size(), afresh.size());
    std::size_t differing = 0;
    for (std::size_t i = 0; i < spliced.size(); ++i) differing += spliced[i] != afresh[i] ? 1 : 0;
    EXPECT_EQ(differing, 0u);
  }
}

TEST_F(outline_window, FaultyRowsAreRedAndTheLastStepsNamesBold) {
  ASSERT_FALSE(rows->rename("Переулки", "", true));
  ASSERT_FALSE(rows->rename("Магистрали", "Проспекты", true));
  // The same text twice: only the second, the last step, is emphasized.
  ASSERT_FALSE(rows->rename("Водопровод", "ЖЖЖЖЖЖ", true));
  ASSERT_FALSE(rows->rename("Канализация", "ЖЖЖЖЖЖ", true));
  ASSERT_FALSE(rows->expand("Кварталы", false));
  RECT area{};
  const std::vector<COLORREF> pixels = screenshot("outline", area);
  POINT origin{0, 0};
  MapWindowPoints(rows->list(), window, &origin, 1);
  const auto count = [&](const char* address, int column, auto&& wanted) {
    const std::vector<std::string> lines = window_rows();
    const auto at = std::find(lines.begin(), lines.end(), line_of(lines, address));
    RECT cell{LVIR_LABEL, column, 0, 0};
    SendMessageW(rows->list(), LVM_GETSUBITEMRECT, at - lines.begin() - 1,
                 reinterpret_cast<LPARAM>(&cell));
    int n = 0;
    for (LONG y = cell.top + origin.y; y < cell.bottom + origin.y; ++y) {
      for (LONG x = cell.left + origin.x; x < cell.right + origin.x; ++x) {
        if (x >= 0 && y >= 0 && x < area.right && y < area.bottom &&
            wanted(pixels[static_cast<std::size_t>(y) * area.right + x])) {
          ++n;
        }
      }
    }
    return n;
  };
  const auto red = [](COLORREF c) { return GetRValue(c) > 150 && GetGValue(c) < 90; };
  const auto ink = [](COLORREF c) { return GetRValue(c) + GetGValue(c) + GetBValue(c) < 300; };
  EXPECT_GT(count("Переулки", 0, red), 10);
  EXPECT_EQ(count("Магистрали", 0, red), 0);
  EXPECT_GT(count("Канализация", 1, ink), count("Водопровод", 1, ink) * 6 / 5);
}

TEST_F(outline_window, AnotherLanguageShowsOnceTheTextsAreReadAgain) {
  tx_host_set_lng(50000);
  rows->refresh(TX_CHANGED_TEXTS);
  tools->refresh(TX_CHANGED_TEXTS);
  ASSERT_FALSE(rows->select("Улицы", true));
  ASSERT_FALSE(rows->rename("Магистрали", "Avenues", true));
  pump();
  EXPECT_EQ(text_rows().front().find("Old name"), 9u);  // after "   " and the box's room
  EXPECT_EQ(joined(window_rows()), joined(text_rows()));
  EXPECT_EQ(window_toolbar(), text_toolbar());
  EXPECT_NE(window_toolbar().find(": Expand | Collapse ‖"), std::string::npos);
  RECT area{};
  screenshot("english", area);
}

}  // namespace
}  // namespace tx::test
