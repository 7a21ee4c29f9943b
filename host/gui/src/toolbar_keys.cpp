// The toolbar from the keyboard: the tools' access keys, the hot tool that the arrows move and
// Space and Enter press while the toolbar has the focus, and the focus frame around it.
#include "toolbar_control.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

// Bit 30 of a key's message: the key was already down (the key repeats while held).
constexpr LPARAM kRepeated = LPARAM{1} << 30;

}  // namespace

const window_logic::assigned_key& toolbar_control::key_for(const tool& t) const noexcept {
  static const window_logic::assigned_key none;
  const auto at = static_cast<std::size_t>(&t - tools_.data());
  return at < keys_.size() ? keys_[at] : none;
}

std::vector<std::u16string> toolbar_control::key_captions() const {
  std::vector<std::u16string> captions;
  for (const dialog::tool_values& t : tools())
    captions.push_back(to_utf16(t.caption.value_or(t.id)));
  return captions;
}

void toolbar_control::set_access_keys(std::vector<window_logic::assigned_key> keys) {
  if (keys == keys_) return;
  keys_ = std::move(keys);
  read_texts();
  fit_text_buttons();
  SendMessageW(bar_, TB_AUTOSIZE, 0, 0);
  InvalidateRect(bar_, nullptr, TRUE);
}

bool toolbar_control::press_access_key(char16_t key) {
  for (const tool& t : tools_) {
    const window_logic::assigned_key& k = key_for(t);
    if (!k || k->letter != key) continue;
    if (pressable(t.command)) invoke(t.command);
    return true;
  }
  return false;
}

bool toolbar_control::pressable(int command) const noexcept {
  const LRESULT state = SendMessageW(bar_, TB_GETSTATE, command, 0);
  return state >= 0 && (state & TBSTATE_ENABLED) != 0 && (state & TBSTATE_HIDDEN) == 0;
}

std::optional<std::size_t> toolbar_control::hot_tool() const {
  const LRESULT index = SendMessageW(bar_, TB_GETHOTITEM, 0, 0);
  if (index < 0) return std::nullopt;
  TBBUTTON button{};
  if (!SendMessageW(bar_, TB_GETBUTTON, index, reinterpret_cast<LPARAM>(&button))) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < tools_.size(); ++i) {
    if (tools_[i].command == button.idCommand) return i;
  }
  return std::nullopt;
}

void toolbar_control::set_hot(int command) {
  const LRESULT index = command != 0 ? SendMessageW(bar_, TB_COMMANDTOINDEX, command, 0) : -1;
  SendMessageW(bar_, TB_SETHOTITEM, static_cast<WPARAM>(index), 0);
  InvalidateRect(bar_, nullptr, FALSE);
}

int toolbar_control::first_hot() const noexcept {
  if (last_used_ != 0 && pressable(last_used_)) return last_used_;
  for (const tool& t : tools_) {
    if (pressable(t.command)) return t.command;
  }
  return 0;
}

void toolbar_control::move_hot(hot_move move) {
  const auto count = static_cast<std::ptrdiff_t>(tools_.size());
  const bool forward = move == hot_move::next || move == hot_move::first;
  // The first and the last are looked for from past either end, as are the previous and the
  // next when no tool is hot.
  std::ptrdiff_t at = forward ? -1 : count;
  const std::optional<std::size_t> hot = hot_tool();
  if (hot && (move == hot_move::previous || move == hot_move::next)) {
    at = static_cast<std::ptrdiff_t>(*hot);
  }
  const std::ptrdiff_t step = forward ? 1 : -1;
  for (at += step; at >= 0 && at < count; at += step) {
    const int command = tools_[static_cast<std::size_t>(at)].command;
    if (pressable(command)) return set_hot(command);
  }
}

std::optional<LRESULT> toolbar_control::on_bar_message(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_GETDLGCODE: {
      // The arrows move among the tools; Enter presses the hot tool, never a dialog's button.
      LRESULT code = DLGC_WANTARROWS;
      const auto* typed = reinterpret_cast<const MSG*>(lparam);
      if (typed != nullptr && typed->message == WM_KEYDOWN && typed->wParam == VK_RETURN) {
        code |= DLGC_WANTMESSAGE;
      }
      return code;
    }
    case WM_KEYDOWN:
      switch (wparam) {
        case VK_LEFT:
        case VK_UP:
          move_hot(hot_move::previous);
          return 0;
        case VK_RIGHT:
        case VK_DOWN:
          move_hot(hot_move::next);
          return 0;
        case VK_HOME:
          move_hot(hot_move::first);
          return 0;
        case VK_END:
          move_hot(hot_move::last);
          return 0;
        case VK_SPACE:
        case VK_RETURN: {
          if ((lparam & kRepeated) != 0) return 0;  // a held key presses once
          const std::optional<std::size_t> hot = hot_tool();
          if (hot && pressable(tools_[*hot].command)) invoke(tools_[*hot].command);
          return 0;
        }
        default:
          return std::nullopt;
      }
    case WM_CHAR:
      // What Space and Enter typed: they have pressed the tool already.
      if (wparam == L' ' || wparam == L'\r') return 0;
      return std::nullopt;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      const LRESULT result = window_subclass::pass_on(bar_, message, wparam, lparam);
      set_hot(message == WM_SETFOCUS ? first_hot() : 0);
      return result;
    }
    default:
      return std::nullopt;
  }
}

void toolbar_control::draw_focus(const NMTBCUSTOMDRAW& draw) const {
  // The hot tool is framed while the toolbar has the focus, unless the system hides focus
  // frames until the keyboard is used.
  if (GetFocus() != bar_) return;
  if ((SendMessageW(bar_, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0) return;
  const LRESULT hot = SendMessageW(bar_, TB_GETHOTITEM, 0, 0);
  if (hot < 0 || hot != SendMessageW(bar_, TB_COMMANDTOINDEX, draw.nmcd.dwItemSpec, 0)) return;
  RECT r = draw.nmcd.rc;
  InflateRect(&r, -2, -2);
  DrawFocusRect(draw.nmcd.hdc, &r);
}

}  // namespace tx::host::gui
