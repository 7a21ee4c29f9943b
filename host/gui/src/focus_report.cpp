#include "focus_report.h"

#include <algorithm>
#include <vector>

#include "dialog_window.h"
#include "field_controls.h"
#include "native.h"
#include "outline_control.h"
#include "toolbar_control.h"
#include "tx_host/dialog/script_values.h"

namespace tx::host::gui {
namespace {

bool within(HWND focus, HWND window) noexcept {
  return window != nullptr && (focus == window || IsChild(window, focus) != FALSE);
}

// The first column's text of list item `position` and its indentation, read from the list.
struct list_item {
  std::string text;
  int indent = 0;
};

list_item item_of(HWND list, int position) {
  std::vector<wchar_t> buffer(256);
  LVITEMW item{};
  item.mask = LVIF_INDENT;
  item.iItem = position;
  SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  for (;;) {
    LVITEMW text{};
    text.pszText = buffer.data();
    text.cchTextMax = static_cast<int>(buffer.size());
    const LRESULT n =
        SendMessageW(list, LVM_GETITEMTEXTW, position, reinterpret_cast<LPARAM>(&text));
    if (n + 1 < static_cast<LRESULT>(buffer.size())) {
      return {utf8(std::wstring_view(buffer.data(), static_cast<std::size_t>(n))), item.iIndent};
    }
    buffer.resize(buffer.size() * 2);
  }
}

// The focused row's path of captions from its top-level row, as a script names a row.
std::string focused_row(HWND list) {
  const auto focused = static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, -1, LVNI_FOCUSED));
  if (focused < 0) return "no row";
  list_item row = item_of(list, focused);
  std::string path = row.text;
  for (int p = focused - 1; p >= 0 && row.indent > 0; --p) {
    const list_item above = item_of(list, p);
    if (above.indent >= row.indent) continue;
    path = above.text + " / " + path;
    row.indent = above.indent;
  }
  return std::string("row ") + dialog::quoted(path);
}

// The toolbar's hot tool, by its caption (its hint or id for a tool shown as a picture).
std::string hot_tool(const toolbar_control& toolbar) {
  HWND bar = toolbar.toolbar();
  const auto hot = static_cast<int>(SendMessageW(bar, TB_GETHOTITEM, 0, 0));
  if (hot < 0) return "no tool";
  // tools() lists the buttons in order without the separators between groups.
  std::size_t position = 0;
  for (int i = 0; i < hot; ++i) {
    TBBUTTON button{};
    SendMessageW(bar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button));
    if ((button.fsStyle & BTNS_SEP) == 0) ++position;
  }
  const std::vector<dialog::tool_values> tools = toolbar.tools();
  if (position >= tools.size()) return "no tool";
  const dialog::tool_values& t = tools[position];
  return std::string("tool ") + dialog::quoted(t.caption ? *t.caption : t.hint ? *t.hint : t.id);
}

}  // namespace

std::string describe_focus(const dialog_window& window) {
  HWND focus = GetFocus();
  if (focus == nullptr || !IsChild(window.handle(), focus)) return "focus: none\n";
  const std::vector<field_control*> fields = window.fields();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!within(focus, fields[i]->box())) continue;
    std::string line = std::string("focus: field ") + std::to_string(i + 1);
    const std::string caption(dialog::bare(fields[i]->caption()));
    if (!caption.empty()) line.append(" ").append(dialog::quoted(caption));
    return line + "\n";
  }
  if (const outline_control* outline = window.outline();
      outline && within(focus, outline->list())) {
    const std::string row = focused_row(outline->list());
    if (focus != outline->list()) return std::string("focus: outline, editor on ") + row + "\n";
    return std::string("focus: outline, ") + row + "\n";
  }
  for (const toolbar_control* toolbar : window.toolbars()) {
    // The toolbar sits in a strip window of its own.
    if (within(focus, GetParent(toolbar->toolbar()))) {
      return std::string("focus: toolbar, ") + hot_tool(*toolbar) + "\n";
    }
  }
  for (const dialog_window::button& b : window.shown_buttons()) {
    if (focus == b.window) return std::string("focus: button ") + dialog::quoted(b.caption) + "\n";
  }
  return "focus: another window of the dialog\n";
}

}  // namespace tx::host::gui
