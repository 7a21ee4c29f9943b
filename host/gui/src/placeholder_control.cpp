#include "placeholder_control.h"

#include "native.h"
#include "tx/host/txk_basic.h"
#include "tx/toolkit/element.h"
#include "tx_host/dialog/dialog_driver.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::gui {

outline_control::outline_control(HWND parent, tx_custom_pointer outline, const metrics& m)
    : outline_(outline),
      list_(make_child(parent, L"LISTBOX", "",
                       LBS_NOINTEGRALHEIGHT | LBS_NOSEL | WS_VSCROLL | WS_HSCROLL, m,
                       WS_EX_CLIENTEDGE)) {
  refresh(TX_CHANGED_ROWS);
}

outline_control::~outline_control() { DestroyWindow(list_); }

size_request outline_control::request(const metrics& m) const {
  return {m.dlu_x(300), m.dlu_y(140), true, true};
}

void outline_control::place(const RECT& area) {
  MoveWindow(list_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

void outline_control::show(bool shown) { ShowWindow(list_, shown ? SW_SHOWNA : SW_HIDE); }

void outline_control::refresh(std::uint32_t) {
  SendMessageW(list_, LB_RESETCONTENT, 0, 0);
  for (const std::string& row : dialog::render_rows(dialog::outline_reader(outline_))) {
    const std::wstring w = wide(row);
    SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(w.c_str()));
  }
}

void outline_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  const int count = static_cast<int>(SendMessageW(list_, LB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    const LRESULT length = SendMessageW(list_, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
    std::wstring row(static_cast<std::size_t>(length > 0 ? length : 0) + 1, L'\0');
    const LRESULT got = SendMessageW(list_, LB_GETTEXT, static_cast<WPARAM>(i),
                                     reinterpret_cast<LPARAM>(row.data()));
    row.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    lines.push_back(utf8(row));
  }
}

std::string outline_control::tick(std::string_view address, bool on) {
  std::string error =
      dialog::act_on_row(outline_, on ? dialog::verb::tick : dialog::verb::untick, address, {});
  refresh(TX_CHANGED_ROWS);
  return error;
}

std::string outline_control::select(std::string_view address, bool on) {
  std::string error =
      dialog::act_on_row(outline_, on ? dialog::verb::select : dialog::verb::deselect, address, {});
  refresh(TX_CHANGED_ROWS);
  return error;
}

std::string outline_control::expand(std::string_view address, bool on) {
  std::string error =
      dialog::act_on_row(outline_, on ? dialog::verb::expand : dialog::verb::collapse, address, {});
  refresh(TX_CHANGED_ROWS);
  return error;
}

std::string outline_control::rename(std::string_view address, std::string_view text, bool enter) {
  if (!enter) return {};
  std::string error = dialog::act_on_row(outline_, dialog::verb::rename, address, text);
  refresh(TX_CHANGED_ROWS);
  return error;
}

toolbar_control::toolbar_control(HWND parent, tx_custom_pointer toolbar, const metrics& m)
    : toolbar_(toolbar),
      line_(make_child(parent, L"STATIC", "", SS_LEFT | SS_NOPREFIX, m)),
      language_offset_(tx_res_get_lng()) {
  refresh(TX_CHANGED_STATE);
}

toolbar_control::~toolbar_control() { DestroyWindow(line_); }

size_request toolbar_control::request(const metrics& m) const {
  return {text_width(m, window_text(line_)), m.dlu_y(10), true, false};
}

void toolbar_control::place(const RECT& area) {
  MoveWindow(line_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

void toolbar_control::show(bool shown) { ShowWindow(line_, shown ? SW_SHOWNA : SW_HIDE); }

void toolbar_control::refresh(std::uint32_t) {
  std::vector<dialog::text::tool_text> tools;
  for (const dialog::tool_entry& t : dialog::tools_of(toolbar_)) {
    tools.push_back({t.group, dialog::tool_caption(t.tool).value_or(t.id),
                     dialog::tool_hint(t.tool), dialog::tool_enabled(t.tool),
                     dialog::tool_visible(t.tool)});
  }
  set_window_text(line_, dialog::text::toolbar(tools, dialog::vocabulary_for(language_offset_)));
}

void toolbar_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  lines.push_back(window_text(line_));
}

std::string toolbar_control::click(std::string_view tool) {
  std::string error = dialog::click_tool({toolbar_}, tool);
  refresh(TX_CHANGED_STATE);
  return error;
}

std::string toolbar_control::describe() const { return dialog::describe_tools(toolbar_); }

}  // namespace tx::host::gui
