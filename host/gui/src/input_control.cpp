// The text input with history: an editable combo box whose list is the history, most recent
// first.
#include <algorithm>

#include "field_controls.h"
#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

std::string element_text(tx_custom_pointer input) {
  return dialog::collect_text([input](tx_custom_pointer v) {
           call(input, &tx_assisted_input_interface_3::text, v);
           return true;
         })
      .value_or("");
}

}  // namespace

input_control::input_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m) {
  box_.reset(make_child(parent, L"COMBOBOX", "",
                        CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP, m));
  refresh(TX_CHANGED_ITEMS | TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request input_control::request(const metrics& m) const {
  return with_caption(m, m.dlu_x(120), m.dlu_y(kBoxHeightDlu) + 2);
}

void input_control::place(const RECT& area) {
  RECT box = box_area(area);
  const LRESULT count = std::max<LRESULT>(SendMessageW(box_.get(), CB_GETCOUNT, 0, 0), 1);
  box.bottom =
      box.top + (area.bottom - area.top) * static_cast<int>(std::min<LRESULT>(count, 8) + 1);
  move_window(box_.get(), box);
}

void input_control::load_history() {
  using table = tx_assisted_input_interface_3;
  SendMessageW(box_.get(), CB_RESETCONTENT, 0, 0);
  const std::int32_t count = dialog::bounded_count(call(element_.pair, &table::history_count));
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> item = dialog::collect_text(
        [&](tx_custom_pointer v) { return call(element_.pair, &table::history_item, i, v); });
    if (!item) continue;
    const std::wstring w = wide(*item);
    SendMessageW(box_.get(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(w.c_str()));
  }
}

void input_control::load_text() { set_window_text(box_.get(), element_text(element_.pair)); }

void input_control::refresh(std::uint32_t changes) {
  const updating_scope quiet(*this);
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) refresh_caption_and_state();
  // Emptying the list empties the edit too: the text is put back after it.
  if ((changes & TX_CHANGED_ITEMS) != 0) load_history();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_VALUE)) != 0) load_text();
}

bool input_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_.get()) return false;
  result = 0;
  if (updating_) return true;
  if (code == CBN_EDITCHANGE) {
    typed_ = true;
    const std::u16string typed = to_utf16(window_text(box_.get()));
    call(element_.pair, &tx_assisted_input_interface_3::set_text, typed.c_str());
  } else if (code == CBN_SELCHANGE) {
    const LRESULT chosen = SendMessageW(box_.get(), CB_GETCURSEL, 0, 0);
    if (chosen != CB_ERR) {
      const std::u16string picked = to_utf16(combo_item(box_.get(), static_cast<int>(chosen)));
      call(element_.pair, &tx_assisted_input_interface_3::set_text, picked.c_str());
    }
  }
  return true;
}

void input_control::print(std::vector<std::string>& lines, const dialog::vocabulary& words) const {
  std::vector<std::string> history;
  const int count = static_cast<int>(SendMessageW(box_.get(), CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) history.push_back(combo_item(box_.get(), i));
  lines.push_back(dialog::text::field(
      dialog::text::input(caption(), window_text(box_.get()), history, words), enabled(), words));
}

std::optional<dialog::refusal> input_control::enter(std::string_view value, std::string_view) {
  // Typed into the combo box's edit, which tells the combo box, which tells the dialog.
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  HWND edit = GetComboBoxInfo(box_.get(), &info) ? info.hwndItem : nullptr;
  typed_ = false;
  const std::wstring w = wide(value);
  SendMessageW(edit != nullptr ? edit : box_.get(), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>(w.c_str()));
  if (!typed_) notify_parent(box_.get(), CBN_EDITCHANGE);
  return std::nullopt;
}

}  // namespace tx::host::gui
