// The drop-down field: a drop-down list of the element's items.
#include <algorithm>

#include "field_controls.h"
#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {

dropdown_control::dropdown_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m), item_height_(m.dlu_y(kBoxHeightDlu)) {
  box_.reset(make_child(parent, L"COMBOBOX", "", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, m));
  refresh(TX_CHANGED_ITEMS | TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request dropdown_control::request(const metrics& m) const {
  int widest = m.dlu_x(40);
  for (const std::string& item : items()) widest = std::max(widest, text_width(m, item));
  // Room for the text's margins and the arrow button.
  return with_caption(m, widest + m.dlu_x(10) + GetSystemMetrics(SM_CXVSCROLL),
                      m.dlu_y(kBoxHeightDlu) + 2);
}

void dropdown_control::place(const RECT& area) {
  RECT box = box_area(area);
  // The window of a drop-down list includes its open list.
  const LRESULT count = SendMessageW(box_.get(), CB_GETCOUNT, 0, 0);
  box.bottom = box.top + (area.bottom - area.top) + item_height_ * static_cast<int>(count + 1);
  move_window(box_.get(), box);
}

void dropdown_control::load_items() {
  using table = tx_dropdown_interface_3;
  SendMessageW(box_.get(), CB_RESETCONTENT, 0, 0);
  const std::int32_t count = dialog::bounded_count(call(element_.pair, &table::item_count));
  for (std::int32_t i = 0; i < count; ++i) {
    const std::wstring item = wide(dialog::collect_text([&](tx_custom_pointer v) {
                                     return call(element_.pair, &table::item_text, i, v);
                                   }).value_or(""));
    SendMessageW(box_.get(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
  }
}

void dropdown_control::refresh(std::uint32_t changes) {
  const updating_scope quiet(*this);
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) refresh_caption_and_state();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_TEXTS)) != 0) load_items();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_TEXTS | TX_CHANGED_VALUE)) != 0) {
    SendMessageW(box_.get(), CB_SETCURSEL,
                 static_cast<WPARAM>(call(element_.pair, &tx_dropdown_interface_3::selected)), 0);
  }
}

bool dropdown_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_.get()) return false;
  result = 0;
  if (code == CBN_SELCHANGE && !updating_) {
    call(element_.pair, &tx_dropdown_interface_3::select,
         static_cast<std::int32_t>(SendMessageW(box_.get(), CB_GETCURSEL, 0, 0)));
  }
  return true;
}

std::vector<std::string> dropdown_control::items() const {
  std::vector<std::string> all;
  const int count = static_cast<int>(SendMessageW(box_.get(), CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) all.push_back(combo_item(box_.get(), i));
  return all;
}

void dropdown_control::print(std::vector<std::string>& lines,
                             const dialog::vocabulary& words) const {
  lines.push_back(dialog::text::field(
      dialog::text::dropdown(
          caption(), items(),
          static_cast<std::int32_t>(SendMessageW(box_.get(), CB_GETCURSEL, 0, 0)), words),
      enabled(), words));
}

void dropdown_control::choose(int index) {
  SendMessageW(box_.get(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  notify_parent(box_.get(), CBN_SELCHANGE);
}

std::optional<dialog::refusal> dropdown_control::enter(std::string_view value,
                                                       std::string_view name) {
  const dialog::lookup<std::size_t> item = dialog::item_value(items(), name, value);
  if (!item) return item.refused();
  choose(static_cast<int>(*item));
  return std::nullopt;
}

}  // namespace tx::host::gui
