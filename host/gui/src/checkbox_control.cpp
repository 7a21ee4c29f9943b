// The check box field: a check box whose text is the caption, its second text as a tooltip.
#include <algorithm>

#include "field_controls.h"
#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"
#include "window_access_keys.h"

namespace tx::host::gui {

checkbox_control::checkbox_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m) {
  // The caption carries the access key, which ticks the box as a click does.
  box_.reset(make_child(parent, L"BUTTON", "", BS_AUTOCHECKBOX | WS_TABSTOP, m));
  tip_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0,
                             0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr));
  refresh(TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request checkbox_control::request(const metrics& m) const {
  // The box and its gap take 12 dialog units before the text.
  return {m.dlu_x(12) + text_width(m, caption()), m.dlu_y(kCheckHeightDlu), false, false};
}

void checkbox_control::place(const RECT& area) {
  RECT r = area;
  r.bottom = r.top + (area.bottom - area.top);
  move_window(box_.get(), r);
}

void checkbox_control::refresh(std::uint32_t changes) {
  const updating_scope quiet(*this);
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) {
    set_caption_text(box_.get(), dialog::field_caption(element_).value_or(""), key_);
    EnableWindow(box_.get(), dialog::element_enabled(element_));
    const std::optional<std::string> hint = dialog::collect_text([this](tx_custom_pointer v) {
      return call(element_.pair, &tx_checkbox_interface_2::second_text, v);
    });
    if (tip_.get() != nullptr) {
      TOOLINFOW tool{};
      tool.cbSize = sizeof tool;
      tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
      tool.hwnd = GetParent(box_.get());
      tool.uId = reinterpret_cast<UINT_PTR>(box_.get());
      SendMessageW(tip_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
      if (hint) {
        tip_text_ = wide(*hint);
        tool.lpszText = tip_text_.data();
        SendMessageW(tip_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
      }
    }
  }
  if ((changes & TX_CHANGED_VALUE) != 0) {
    const bool on = call(element_.pair, &tx_checkbox_interface_2::checked);
    SendMessageW(box_.get(), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

bool checkbox_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_.get()) return false;
  result = 0;
  if (code == BN_CLICKED && !updating_) {
    call(element_.pair, &tx_checkbox_interface_2::set_checked,
         SendMessageW(box_.get(), BM_GETCHECK, 0, 0) == BST_CHECKED);
  }
  return true;
}

void checkbox_control::print(std::vector<std::string>& lines,
                             const dialog::vocabulary& words) const {
  lines.push_back(dialog::text::field(
      dialog::text::checkbox(SendMessageW(box_.get(), BM_GETCHECK, 0, 0) == BST_CHECKED, caption()),
      enabled(), words));
}

std::string checkbox_control::caption() const { return caption_text(box_.get()); }

std::optional<dialog::refusal> checkbox_control::enter(std::string_view value, std::string_view) {
  const dialog::lookup<bool> on = dialog::switch_value(value);
  if (!on) return on.refused();
  if ((SendMessageW(box_.get(), BM_GETCHECK, 0, 0) == BST_CHECKED) != *on) {
    SendMessageW(box_.get(), BM_CLICK, 0, 0);
  }
  return std::nullopt;
}

}  // namespace tx::host::gui
