// The dialog window's controls for the plain elements: the label, what every field shares (its
// caption beside the box, its enabled state), and the one place that makes the right control
// for an element.
#include "field_controls.h"

#include <algorithm>

#include "native.h"
#include "tx/toolkit/controls.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/services/utf.h"
#include "window_access_keys.h"

namespace tx::host::gui {
namespace {

// Caption text sits this far down from the top of its row, level with the text in the box.
constexpr int kCaptionDropDlu = 2;

// The caption as the static beside the box shows it: with a colon, unless it ends in its own
// sign ("N =") already. The printed form puts back the same "Caption: value".
std::string shown_caption(const dialog::element& e) {
  std::string caption = dialog::field_caption(e).value_or("");
  while (!caption.empty() && caption.back() == ' ') caption.pop_back();
  if (!caption.empty() && caption.back() != ':' && caption.back() != '=') caption += ':';
  return caption;
}

}  // namespace

label_control::label_control(HWND parent, tx_custom_pointer label, const metrics& m)
    : label_(label), text_(make_child(parent, L"STATIC", "", SS_LEFT | SS_NOPREFIX, m)) {
  refresh(TX_CHANGED_TEXTS);
}

size_request label_control::request(const metrics& m) const {
  return {text_width(m, window_text(text_.get())), m.dlu_y(kTextHeightDlu), false, false};
}

void label_control::place(const RECT& area) { move_window(text_.get(), area); }

void label_control::show(bool shown) { ShowWindow(text_.get(), shown ? SW_SHOWNA : SW_HIDE); }

void label_control::refresh(std::uint32_t) {
  set_window_text(text_.get(), dialog::collect_text([this](tx_custom_pointer v) {
                                 return call(label_, &tx_label_interface_2::text, v);
                               }).value_or(""));
}

void label_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  lines.push_back(window_text(text_.get()));
}

field_control::field_control(HWND parent, const dialog::element& e, const metrics& m)
    : element_(e), gap_(m.dlu_x(4)) {
  if (e.kind != dialog::element_kind::checkbox) {
    // The label shows the field's access key underlined; Alt and the key take the focus to the
    // box, which follows the label in the tab order.
    caption_.reset(make_child(parent, L"STATIC", "", SS_LEFT, m));
    set_caption_text(caption_.get(), shown_caption(e), key_);
  }
}

void field_control::show(bool shown) {
  if (caption_.get() != nullptr) ShowWindow(caption_.get(), shown ? SW_SHOWNA : SW_HIDE);
  ShowWindow(box_.get(), shown ? SW_SHOWNA : SW_HIDE);
}

std::string field_control::caption() const {
  return caption_.get() != nullptr ? caption_text(caption_.get()) : std::string();
}

void field_control::set_access_key(const window_logic::assigned_key& key) {
  key_ = key;
  HWND shown = caption_.get() != nullptr ? caption_.get() : box_.get();
  set_caption_text(shown, caption(), key_);
}

bool field_control::enabled() const noexcept { return IsWindowEnabled(box_.get()) != FALSE; }

int field_control::caption_width(const metrics& m) const {
  // A check box carries its caption in itself: it takes no room in the caption column.
  if (caption_.get() == nullptr) return 0;
  const std::string shown = caption();
  return shown.empty() ? 0 : text_width(m, shown);
}

RECT field_control::box_area(const RECT& area) const {
  RECT box = area;
  if (caption_.get() != nullptr && caption_column_ > 0) {
    RECT label{area.left, area.top, area.left + caption_column_, area.bottom};
    const int drop = MulDiv(kCaptionDropDlu, area.bottom - area.top, kBoxHeightDlu);
    label.top += drop;
    move_window(caption_.get(), label);
    box.left += caption_column_ + gap_;
  } else if (caption_.get() != nullptr) {
    move_window(caption_.get(), RECT{area.left, area.top, area.left, area.top});
  }
  return box;
}

void field_control::refresh_caption_and_state() {
  if (caption_.get() != nullptr) set_caption_text(caption_.get(), shown_caption(element_), key_);
  const bool on = dialog::element_enabled(element_);
  EnableWindow(box_.get(), on);
  if (caption_.get() != nullptr) EnableWindow(caption_.get(), on);
}

size_request field_control::with_caption(const metrics& m, int box_width, int box_height) const {
  const int caption = std::max(caption_column_, caption_width(m));
  return {caption > 0 ? caption + gap_ + box_width : box_width, box_height, true, false};
}

int caption_width(const dialog::element& e, const metrics& m) {
  switch (e.kind) {
    case dialog::element_kind::dropdown:
    case dialog::element_kind::integer_input:
    case dialog::element_kind::assisted_input: {
      const std::string shown = shown_caption(e);
      return shown.empty() ? 0 : text_width(m, shown);
    }
    default:
      return 0;
  }
}

std::unique_ptr<control> make_plain_control(HWND parent, const dialog::element& e,
                                            const metrics& m) {
  switch (e.kind) {
    case dialog::element_kind::label:
      return std::make_unique<label_control>(parent, e.pair, m);
    case dialog::element_kind::checkbox:
      return std::make_unique<checkbox_control>(parent, e, m);
    case dialog::element_kind::dropdown:
      return std::make_unique<dropdown_control>(parent, e, m);
    case dialog::element_kind::integer_input:
      return std::make_unique<integer_control>(parent, e, m);
    case dialog::element_kind::assisted_input:
      return std::make_unique<input_control>(parent, e, m);
    default:
      return nullptr;
  }
}

}  // namespace tx::host::gui
