#include "field_controls.h"

#include <algorithm>
#include <limits>

#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

namespace text = dialog::text;
using dialog::element_kind;

// Heights in dialog units of the standard controls.
constexpr int kTextHeight = 8;
constexpr int kBoxHeight = 12;
constexpr int kCheckHeight = 10;
// Caption text sits this far down from the top of its row, level with the text in the box.
constexpr int kCaptionDrop = 2;

// The caption as the static beside the box shows it: with a colon, unless it ends in its own
// sign ("N =") already. The printed form puts back the same "Caption: value".
std::string shown_caption(const dialog::element& e) {
  std::string caption = dialog::field_caption(e).value_or("");
  while (!caption.empty() && caption.back() == ' ') caption.pop_back();
  if (!caption.empty() && caption.back() != ':' && caption.back() != '=') caption += ':';
  return caption;
}

std::string element_text(tx_custom_pointer input) {
  return dialog::collect_text([input](tx_custom_pointer v) {
           call(input, &tx_assisted_input_interface_3::text, v);
           return true;
         })
      .value_or("");
}

void move(HWND window, const RECT& r) {
  MoveWindow(window, r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
}

}  // namespace

// --- label -----------------------------------------------------------------------------------

label_control::label_control(HWND parent, tx_custom_pointer label, const metrics& m)
    : label_(label), text_(make_child(parent, L"STATIC", "", SS_LEFT | SS_NOPREFIX, m)) {
  refresh(TX_CHANGED_TEXTS);
}

label_control::~label_control() { DestroyWindow(text_); }

size_request label_control::request(const metrics& m) const {
  return {text_width(m, window_text(text_)), m.dlu_y(kTextHeight), false, false};
}

void label_control::place(const RECT& area) { move(text_, area); }

void label_control::show(bool shown) { ShowWindow(text_, shown ? SW_SHOWNA : SW_HIDE); }

void label_control::refresh(std::uint32_t) {
  set_window_text(text_, dialog::collect_text([this](tx_custom_pointer v) {
                           return call(label_, &tx_label_interface_2::text, v);
                         }).value_or(""));
}

void label_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  lines.push_back(window_text(text_));
}

// --- fields ----------------------------------------------------------------------------------

field_control::field_control(HWND parent, const dialog::element& e, const metrics& m)
    : element_(e), gap_(m.dlu_x(4)) {
  if (e.kind != element_kind::checkbox) {
    caption_ = make_child(parent, L"STATIC", shown_caption(e), SS_LEFT | SS_NOPREFIX, m);
  }
}

field_control::~field_control() {
  if (caption_ != nullptr) DestroyWindow(caption_);
  DestroyWindow(box_);
}

void field_control::show(bool shown) {
  if (caption_ != nullptr) ShowWindow(caption_, shown ? SW_SHOWNA : SW_HIDE);
  ShowWindow(box_, shown ? SW_SHOWNA : SW_HIDE);
}

std::string field_control::caption() const {
  return caption_ != nullptr ? window_text(caption_) : std::string();
}

bool field_control::enabled() const noexcept { return IsWindowEnabled(box_) != FALSE; }

int field_control::caption_width(const metrics& m) const {
  const std::string shown = caption_ != nullptr ? window_text(caption_) : std::string();
  return shown.empty() ? 0 : text_width(m, shown);
}

RECT field_control::box_area(const RECT& area) const {
  RECT box = area;
  if (caption_ != nullptr && caption_column_ > 0) {
    RECT label{area.left, area.top, area.left + caption_column_, area.bottom};
    const int drop = MulDiv(kCaptionDrop, area.bottom - area.top, kBoxHeight);
    label.top += drop;
    move(caption_, label);
    box.left += caption_column_ + gap_;
  } else if (caption_ != nullptr) {
    move(caption_, RECT{area.left, area.top, area.left, area.top});
  }
  return box;
}

void field_control::refresh_caption_and_state() {
  if (caption_ != nullptr) set_window_text(caption_, shown_caption(element_));
  const bool on = dialog::element_enabled(element_);
  EnableWindow(box_, on);
  if (caption_ != nullptr) EnableWindow(caption_, on);
}

size_request field_control::with_caption(const metrics& m, int box_width, int box_height) const {
  const int caption = std::max(caption_column_, caption_width(m));
  return {caption > 0 ? caption + gap_ + box_width : box_width, box_height, true, false};
}

// --- check box -------------------------------------------------------------------------------

checkbox_control::checkbox_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m) {
  box_ = make_child(parent, L"BUTTON", dialog::field_caption(e).value_or(""),
                    BS_AUTOCHECKBOX | WS_TABSTOP, m);
  tip_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0,
                         0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  refresh(TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

checkbox_control::~checkbox_control() {
  if (tip_ != nullptr) DestroyWindow(tip_);
}

size_request checkbox_control::request(const metrics& m) const {
  // The box and its gap take 12 dialog units before the text.
  return {m.dlu_x(12) + text_width(m, window_text(box_)), m.dlu_y(kCheckHeight), false, false};
}

void checkbox_control::place(const RECT& area) {
  RECT r = area;
  r.bottom = r.top + (area.bottom - area.top);
  move(box_, r);
}

void checkbox_control::refresh(std::uint32_t changes) {
  const bool was = updating_;
  updating_ = true;
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) {
    set_window_text(box_, dialog::field_caption(element_).value_or(""));
    EnableWindow(box_, dialog::element_enabled(element_));
    const std::optional<std::string> hint = dialog::collect_text([this](tx_custom_pointer v) {
      return call(element_.pair, &tx_checkbox_interface_2::second_text, v);
    });
    if (tip_ != nullptr) {
      TOOLINFOW tool{};
      tool.cbSize = sizeof tool;
      tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
      tool.hwnd = GetParent(box_);
      tool.uId = reinterpret_cast<UINT_PTR>(box_);
      SendMessageW(tip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
      if (hint) {
        tip_text_ = wide(*hint);
        tool.lpszText = tip_text_.data();
        SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
      }
    }
  }
  if ((changes & TX_CHANGED_VALUE) != 0) {
    const bool on = call(element_.pair, &tx_checkbox_interface_2::checked);
    SendMessageW(box_, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
  }
  updating_ = was;
}

bool checkbox_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_) return false;
  result = 0;
  if (code == BN_CLICKED && !updating_) {
    call(element_.pair, &tx_checkbox_interface_2::set_checked,
         SendMessageW(box_, BM_GETCHECK, 0, 0) == BST_CHECKED);
  }
  return true;
}

void checkbox_control::print(std::vector<std::string>& lines,
                             const dialog::vocabulary& words) const {
  lines.push_back(text::field(
      text::checkbox(SendMessageW(box_, BM_GETCHECK, 0, 0) == BST_CHECKED, window_text(box_)),
      enabled(), words));
}

std::string checkbox_control::caption() const { return window_text(box_); }

std::string checkbox_control::enter(std::string_view value, std::string_view) {
  const std::optional<bool> on = dialog::on_off(value);
  if (!on) return dialog::quoted(value) + " is neither on nor off";
  if ((SendMessageW(box_, BM_GETCHECK, 0, 0) == BST_CHECKED) != *on) {
    SendMessageW(box_, BM_CLICK, 0, 0);
  }
  return {};
}

// --- drop-down list --------------------------------------------------------------------------

dropdown_control::dropdown_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m), item_height_(m.dlu_y(kBoxHeight)) {
  box_ = make_child(parent, L"COMBOBOX", "", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, m);
  refresh(TX_CHANGED_ITEMS | TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request dropdown_control::request(const metrics& m) const {
  int widest = m.dlu_x(40);
  for (const std::string& item : items()) widest = std::max(widest, text_width(m, item));
  // Room for the text's margins and the arrow button.
  return with_caption(m, widest + m.dlu_x(10) + GetSystemMetrics(SM_CXVSCROLL),
                      m.dlu_y(kBoxHeight) + 2);
}

void dropdown_control::place(const RECT& area) {
  RECT box = box_area(area);
  // The window of a drop-down list includes its open list.
  const LRESULT count = SendMessageW(box_, CB_GETCOUNT, 0, 0);
  box.bottom = box.top + (area.bottom - area.top) + item_height_ * static_cast<int>(count + 1);
  move(box_, box);
}

void dropdown_control::load_items() {
  using table = tx_dropdown_interface_3;
  SendMessageW(box_, CB_RESETCONTENT, 0, 0);
  const std::int32_t count = std::clamp(call(element_.pair, &table::item_count), 0, 10000);
  for (std::int32_t i = 0; i < count; ++i) {
    const std::wstring item = wide(dialog::collect_text([&](tx_custom_pointer v) {
                                     return call(element_.pair, &table::item_text, i, v);
                                   }).value_or(""));
    SendMessageW(box_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
  }
}

void dropdown_control::refresh(std::uint32_t changes) {
  const bool was = updating_;
  updating_ = true;
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) refresh_caption_and_state();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_TEXTS)) != 0) load_items();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_TEXTS | TX_CHANGED_VALUE)) != 0) {
    SendMessageW(box_, CB_SETCURSEL,
                 static_cast<WPARAM>(call(element_.pair, &tx_dropdown_interface_3::selected)), 0);
  }
  updating_ = was;
}

bool dropdown_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_) return false;
  result = 0;
  if (code == CBN_SELCHANGE && !updating_) {
    call(element_.pair, &tx_dropdown_interface_3::select,
         static_cast<std::int32_t>(SendMessageW(box_, CB_GETCURSEL, 0, 0)));
  }
  return true;
}

std::vector<std::string> dropdown_control::items() const {
  std::vector<std::string> all;
  const int count = static_cast<int>(SendMessageW(box_, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) all.push_back(combo_item(box_, i));
  return all;
}

void dropdown_control::print(std::vector<std::string>& lines,
                             const dialog::vocabulary& words) const {
  lines.push_back(text::field(
      text::dropdown(caption(), items(),
                     static_cast<std::int32_t>(SendMessageW(box_, CB_GETCURSEL, 0, 0)), words),
      enabled(), words));
}

void dropdown_control::choose(int index) {
  SendMessageW(box_, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  notify_parent(box_, CBN_SELCHANGE);
}

std::string dropdown_control::enter(std::string_view value, std::string_view name) {
  const std::vector<std::string> all = items();
  int index = -1;
  for (std::size_t i = 0; i < all.size() && index < 0; ++i) {
    if (all[i] == value) index = static_cast<int>(i);
  }
  if (index < 0) {
    const std::optional<std::size_t> n = dialog::position(value);
    if (n && *n <= all.size()) index = static_cast<int>(*n - 1);
  }
  if (index < 0) return "field " + dialog::quoted(name) + " has no item " + dialog::quoted(value);
  choose(index);
  return {};
}

// --- text input with history -----------------------------------------------------------------

input_control::input_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m) {
  box_ = make_child(parent, L"COMBOBOX", "",
                    CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP, m);
  refresh(TX_CHANGED_ITEMS | TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

size_request input_control::request(const metrics& m) const {
  return with_caption(m, m.dlu_x(120), m.dlu_y(kBoxHeight) + 2);
}

void input_control::place(const RECT& area) {
  RECT box = box_area(area);
  const LRESULT count = std::max<LRESULT>(SendMessageW(box_, CB_GETCOUNT, 0, 0), 1);
  box.bottom =
      box.top + (area.bottom - area.top) * static_cast<int>(std::min<LRESULT>(count, 8) + 1);
  move(box_, box);
}

void input_control::load_history() {
  using table = tx_assisted_input_interface_3;
  SendMessageW(box_, CB_RESETCONTENT, 0, 0);
  const std::int32_t count = std::clamp(call(element_.pair, &table::history_count), 0, 10000);
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> item = dialog::collect_text(
        [&](tx_custom_pointer v) { return call(element_.pair, &table::history_item, i, v); });
    if (!item) continue;
    const std::wstring w = wide(*item);
    SendMessageW(box_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(w.c_str()));
  }
}

void input_control::load_text() { set_window_text(box_, element_text(element_.pair)); }

void input_control::refresh(std::uint32_t changes) {
  const bool was = updating_;
  updating_ = true;
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) refresh_caption_and_state();
  // Emptying the list empties the edit too: the text is put back after it.
  if ((changes & TX_CHANGED_ITEMS) != 0) load_history();
  if ((changes & (TX_CHANGED_ITEMS | TX_CHANGED_VALUE)) != 0) load_text();
  updating_ = was;
}

bool input_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_) return false;
  result = 0;
  if (updating_) return true;
  if (code == CBN_EDITCHANGE) {
    typed_ = true;
    const std::u16string typed = to_utf16(window_text(box_));
    call(element_.pair, &tx_assisted_input_interface_3::set_text, typed.c_str());
  } else if (code == CBN_SELCHANGE) {
    const LRESULT chosen = SendMessageW(box_, CB_GETCURSEL, 0, 0);
    if (chosen != CB_ERR) {
      const std::u16string picked = to_utf16(combo_item(box_, static_cast<int>(chosen)));
      call(element_.pair, &tx_assisted_input_interface_3::set_text, picked.c_str());
    }
  }
  return true;
}

void input_control::print(std::vector<std::string>& lines, const dialog::vocabulary& words) const {
  std::vector<std::string> history;
  const int count = static_cast<int>(SendMessageW(box_, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) history.push_back(combo_item(box_, i));
  lines.push_back(
      text::field(text::input(caption(), window_text(box_), history, words), enabled(), words));
}

std::string input_control::enter(std::string_view value, std::string_view) {
  // Typed into the combo box's edit, which tells the combo box, which tells the dialog.
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  HWND edit = GetComboBoxInfo(box_, &info) ? info.hwndItem : nullptr;
  typed_ = false;
  const std::wstring w = wide(value);
  SendMessageW(edit != nullptr ? edit : box_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(w.c_str()));
  if (!typed_) notify_parent(box_, CBN_EDITCHANGE);
  return {};
}

// --- integer input ---------------------------------------------------------------------------

integer_control::integer_control(HWND parent, const dialog::element& e, const metrics& m)
    : field_control(parent, e, m), box_width_(m.dlu_x(50)) {
  box_ = make_child(parent, L"EDIT", "", ES_AUTOHSCROLL | WS_TABSTOP, m, WS_EX_CLIENTEDGE);
  spin_ = make_child(parent, UPDOWN_CLASSW, "",
                     UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS | UDS_NOTHOUSANDS, m);
  SendMessageW(spin_, UDM_SETBUDDY, reinterpret_cast<WPARAM>(box_), 0);
  refresh(TX_CHANGED_VALUE | TX_CHANGED_TEXTS | TX_CHANGED_STATE);
}

integer_control::~integer_control() { DestroyWindow(spin_); }

size_request integer_control::request(const metrics& m) const {
  size_request r = with_caption(m, box_width_, m.dlu_y(kBoxHeight) + 2);
  r.grows_across = false;
  return r;
}

void integer_control::place(const RECT& area) {
  RECT box = box_area(area);
  box.right = std::min(box.right, box.left + box_width_);
  move(box_, box);
  // The up-down control sits on the edit's right edge and resizes the edit around itself.
  SendMessageW(spin_, UDM_SETBUDDY, reinterpret_cast<WPARAM>(box_), 0);
}

void integer_control::show(bool shown) {
  field_control::show(shown);
  ShowWindow(spin_, shown ? SW_SHOWNA : SW_HIDE);
}

void integer_control::load_value() {
  using table = tx_integer_input_interface_6;
  SendMessageW(spin_, UDM_SETRANGE32, static_cast<WPARAM>(call(element_.pair, &table::minimum)),
               static_cast<LPARAM>(call(element_.pair, &table::maximum)));
  set_window_text(box_, std::to_string(call(element_.pair, &table::value)));
}

void integer_control::refresh(std::uint32_t changes) {
  const bool was = updating_;
  updating_ = true;
  if ((changes & (TX_CHANGED_TEXTS | TX_CHANGED_STATE)) != 0) {
    refresh_caption_and_state();
    EnableWindow(spin_, IsWindowEnabled(box_));
  }
  if ((changes & (TX_CHANGED_VALUE | TX_CHANGED_ITEMS)) != 0) load_value();
  updating_ = was;
}

bool integer_control::on_command(HWND from, UINT code, LRESULT& result) {
  if (from != box_) return false;
  result = 0;
  if (code != EN_CHANGE || updating_) return true;
  typed_ = true;
  const std::optional<std::int32_t> n = dialog::whole_number(window_text(box_));
  if (!n) return true;  // not a number yet ("-" while typing "-3")
  using table = tx_integer_input_interface_6;
  call(element_.pair, &table::set_value, *n);
  // The input keeps the number within its bounds, as the up-down control does.
  if (call(element_.pair, &table::value) != *n) {
    updating_ = true;
    load_value();
    updating_ = false;
  }
  return true;
}

void integer_control::print(std::vector<std::string>& lines,
                            const dialog::vocabulary& words) const {
  std::int32_t low = 0;
  std::int32_t high = 0;
  SendMessageW(spin_, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
               reinterpret_cast<LPARAM>(&high));
  lines.push_back(text::field(
      text::integer(caption(), dialog::whole_number(window_text(box_)).value_or(0), low, high),
      enabled(), words));
}

std::string integer_control::enter(std::string_view value, std::string_view) {
  if (!dialog::whole_number(value)) return dialog::quoted(value) + " is not a whole number";
  typed_ = false;
  const std::wstring w = wide(value);
  SendMessageW(box_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(w.c_str()));
  if (!typed_) notify_parent(box_, EN_CHANGE);
  return {};
}

std::unique_ptr<control> make_plain_control(HWND parent, const dialog::element& e,
                                            const metrics& m) {
  switch (e.kind) {
    case element_kind::label:
      return std::make_unique<label_control>(parent, e.pair, m);
    case element_kind::checkbox:
      return std::make_unique<checkbox_control>(parent, e, m);
    case element_kind::dropdown:
      return std::make_unique<dropdown_control>(parent, e, m);
    case element_kind::integer_input:
      return std::make_unique<integer_control>(parent, e, m);
    case element_kind::assisted_input:
      return std::make_unique<input_control>(parent, e, m);
    default:
      return nullptr;
  }
}

}  // namespace tx::host::gui
