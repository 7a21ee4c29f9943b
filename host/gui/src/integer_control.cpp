// The integer input: an edit with an up-down control that keeps the number within its bounds.
#include <algorithm>

#include "field_controls.h"
#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {

integer_control::integer_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m), box_width_(m.dlu_x(50)) {
  box_.reset(make_child(parent, L"EDIT", "", ES_AUTOHSCROLL | WS_TABSTOP, m, WS_EX_CLIENTEDGE));
  spin_.reset(make_child(parent, UPDOWN_CLASSW, "",
                         UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS | UDS_NOTHOUSANDS, m));
  SendMessageW(spin_.get(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(box_.get()), 0);
  refresh(TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request integer_control::request(const metrics& m) const {
  // The box fills its cell, so that its right edge lines up with the boxes above and below it.
  return with_caption(m, box_width_, m.dlu_y(kBoxHeightDlu) + 2);
}

void integer_control::place(const RECT& area) {
  const RECT box = box_area(area);
  move_window(box_.get(), box);
  // The up-down control sits on the edit's right edge and resizes the edit around itself.
  SendMessageW(spin_.get(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(box_.get()), 0);
}

void integer_control::show(bool shown) {
  field_control::show(shown);
  ShowWindow(spin_.get(), shown ? SW_SHOWNA : SW_HIDE);
}

void integer_control::load_value() {
  using table = tx_integer_input_interface_6;
  SendMessageW(spin_.get(), UDM_SETRANGE32,
               static_cast<WPARAM>(call(element_.pair, &table::minimum)),
               static_cast<LPARAM>(call(element_.pair, &table::maximum)));
  set_window_text(box_.get(), std::to_string(call(element_.pair, &table::value)));
}

void integer_control::refresh(std::uint32_t changes) {
  const updating_scope quiet(*this);
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) {
    refresh_caption_and_state();
    EnableWindow(spin_.get(), IsWindowEnabled(box_.get()));
  }
  if ((changes & (TX_CHANGED_VALUE | TX_CHANGED_ITEMS)) != 0) load_value();
}

bool integer_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_.get()) return false;
  result = 0;
  if (code != EN_CHANGE || updating_) return true;
  typed_ = true;
  const std::optional<std::int32_t> n = dialog::whole_number(window_text(box_.get()));
  if (!n) return true;  // not a number yet ("-" while typing "-3")
  using table = tx_integer_input_interface_6;
  call(element_.pair, &table::set_value, *n);
  // The input keeps the number within its bounds, as the up-down control does.
  if (call(element_.pair, &table::value) != *n) {
    const updating_scope quiet(*this);
    load_value();
  }
  return true;
}

void integer_control::print(std::vector<std::string>& lines,
                            const dialog::vocabulary& words) const {
  std::int32_t low = 0;
  std::int32_t high = 0;
  SendMessageW(spin_.get(), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
               reinterpret_cast<LPARAM>(&high));
  lines.push_back(dialog::text::field(
      dialog::text::integer(caption(), dialog::whole_number(window_text(box_.get())).value_or(0),
                            low, high),
      enabled(), words));
}

std::optional<dialog::refusal> integer_control::enter(std::string_view value, std::string_view) {
  if (const dialog::lookup<std::int32_t> n = dialog::number_value(value); !n) return n.refused();
  typed_ = false;
  const std::wstring w = wide(value);
  SendMessageW(box_.get(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(w.c_str()));
  if (!typed_) notify_parent(box_.get(), EN_CHANGE);
  return std::nullopt;
}

}  // namespace tx::host::gui
