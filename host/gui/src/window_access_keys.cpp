// The dialog's access keys: chosen from what the controls show (window_logic's access_keys) and
// written into their texts; the tools' keys, which the dialog manager does not know, taken from
// the window's loop.
#include "window_access_keys.h"

#include <vector>

#include "dialog_window.h"
#include "field_controls.h"
#include "toolbar_control.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

std::u16string native_text(HWND control) {
  std::vector<wchar_t> text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
  GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
  return std::u16string(reinterpret_cast<const char16_t*>(text.data()));
}

}  // namespace

std::string caption_text(HWND control) {
  return to_utf8(window_logic::without_marker(native_text(control)));
}

void set_caption_text(HWND control, std::string_view caption,
                      const window_logic::assigned_key& key) {
  const std::u16string shown = window_logic::with_marker(to_utf16(caption), key);
  if (control == nullptr || native_text(control) == shown) return;
  SetWindowTextW(control, reinterpret_cast<const wchar_t*>(shown.c_str()));
}

void dialog_window::assign_access_keys() {
  if (root_ == nullptr) return;
  // Two classes: what stays whatever operation is shown (the buttons, the tools, the fields
  // outside the stacked panels, in that order of priority), then the shown panel's fields. The
  // first class's keys never depend on the panel.
  std::vector<toolbar_control*> bars;
  std::vector<field_control*> fields[2];
  auto visit = [&](auto&& self, const window_node& node, bool stacked) -> void {
    if (auto* bar = dynamic_cast<toolbar_control*>(node.leaf.get())) bars.push_back(bar);
    if (auto* field = dynamic_cast<field_control*>(node.leaf.get())) {
      fields[stacked ? 1 : 0].push_back(field);
    }
    stacked = stacked || node.element().kind == dialog::element_kind::stack;
    for (const auto& child : node.children) self(self, *child, stacked);
  };
  visit(visit, *root_, false);

  std::vector<std::vector<std::u16string>> captions(2);
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    captions[0].push_back(to_utf16(caption_text(shown_button)));
  }
  std::vector<std::size_t> tools;
  for (const toolbar_control* bar : bars) {
    std::vector<std::u16string> texts = bar->key_captions();
    tools.push_back(texts.size());
    for (std::u16string& text : texts) captions[0].push_back(std::move(text));
  }
  for (int k = 0; k < 2; ++k) {
    for (const field_control* field : fields[k]) captions[k].push_back(to_utf16(field->caption()));
  }

  const std::vector<std::vector<window_logic::assigned_key>> keys =
      window_logic::assign_access_keys(captions);
  marked_keys_.clear();
  auto mark = [this](const std::u16string& caption, const window_logic::assigned_key& key) {
    if (key) marked_keys_.emplace_back(key->letter, caption[key->position]);
  };
  std::size_t n = 0;
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    mark(captions[0][n], keys[0][n]);
    set_caption_text(shown_button, to_utf8(captions[0][n]), keys[0][n]);
    ++n;
  }
  for (std::size_t b = 0; b < bars.size(); ++b) {
    bars[b]->set_access_keys({keys[0].begin() + static_cast<std::ptrdiff_t>(n),
                              keys[0].begin() + static_cast<std::ptrdiff_t>(n + tools[b])});
    n += tools[b];
  }
  // The fields come last in their class: after the buttons and tools in the first, alone in the
  // second.
  for (int k = 0; k < 2; ++k) {
    for (std::size_t i = captions[k].size() - fields[k].size(), f = 0; f < fields[k].size();
         ++i, ++f) {
      mark(captions[k][i], keys[k][i]);
      fields[k][f]->set_access_key(keys[k][i]);
    }
  }
}

bool dialog_window::take_access_key(MSG& message) {
  if (message.message != WM_SYSCHAR && message.message != WM_CHAR) return false;
  if (window_ == nullptr || (message.hwnd != window_ && !IsChild(window_, message.hwnd))) {
    return false;
  }
  // Alt and a key anywhere in the dialog; a key alone where the focused control takes no
  // characters (a button, a toolbar), as the dialog manager reads it.
  bool wanted = message.message == WM_SYSCHAR;
  if (message.message == WM_CHAR) {
    const LRESULT code = SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam,
                                      reinterpret_cast<LPARAM>(&message));
    wanted = (code & (DLGC_WANTCHARS | DLGC_WANTMESSAGE)) == 0;
  }
  const char16_t key = window_logic::key_of(static_cast<char16_t>(message.wParam));
  if (!wanted || key == 0) return false;
  for (toolbar_control* bar : toolbars()) {
    if (bar->press_access_key(key)) return true;
  }
  // The dialog manager matches the typed character with the marked one through a case mapping
  // that may know no case beyond ASCII (Wine's): it gets the character as the caption shows it.
  for (const auto& [letter, shown] : marked_keys_) {
    if (letter == key) message.wParam = shown;
  }
  return false;
}

}  // namespace tx::host::gui
