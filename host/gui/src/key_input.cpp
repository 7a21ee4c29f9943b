#include "key_input.h"

#include "tx_host/services/letter_case.h"

namespace tx::host::gui {
namespace {

using dialog::key_chord;
using dialog::named_key;

// The virtual key of a named key, and whether it is one of the extended keys (the arrows and the
// navigation block, which a keyboard reports with the extended flag).
struct virtual_key {
  WORD code = 0;
  bool extended = false;
};

virtual_key virtual_key_of(named_key key) noexcept {
  switch (key) {
    case named_key::tab:
      return {VK_TAB};
    case named_key::enter:
      return {VK_RETURN};
    case named_key::escape:
      return {VK_ESCAPE};
    case named_key::space:
      return {VK_SPACE};
    case named_key::up:
      return {VK_UP, true};
    case named_key::down:
      return {VK_DOWN, true};
    case named_key::left:
      return {VK_LEFT, true};
    case named_key::right:
      return {VK_RIGHT, true};
    case named_key::home:
      return {VK_HOME, true};
    case named_key::end:
      return {VK_END, true};
    case named_key::page_up:
      return {VK_PRIOR, true};
    case named_key::page_down:
      return {VK_NEXT, true};
    case named_key::insert:
      return {VK_INSERT, true};
    case named_key::del:
      return {VK_DELETE, true};
    case named_key::backspace:
      return {VK_BACK};
    case named_key::character:
      return {};
    default:
      return {static_cast<WORD>(VK_F1 + (static_cast<int>(key) - static_cast<int>(named_key::f1)))};
  }
}

INPUT key_event(WORD code, bool extended, bool up) noexcept {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = code;
  event.ki.wScan = static_cast<WORD>(MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
  event.ki.dwFlags = (extended ? KEYEVENTF_EXTENDEDKEY : 0) | (up ? KEYEVENTF_KEYUP : 0);
  return event;
}

INPUT unicode_event(wchar_t unit, bool up) noexcept {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wScan = unit;
  event.ki.dwFlags = KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0);
  return event;
}

// Normalized absolute coordinates (0 to 65535 across the primary screen) of the centre of pixel
// `pixel` of `extent` pixels, so that both roundings a system may use land on that pixel.
LONG absolute(LONG pixel, int extent) noexcept {
  if (extent <= 0) return 0;
  return static_cast<LONG>((static_cast<long long>(2 * pixel + 1) * 65536) / (2LL * extent));
}

}  // namespace

std::vector<INPUT> chord_events(const key_chord& chord) {
  std::vector<WORD> modifiers;
  if (chord.ctrl) modifiers.push_back(VK_CONTROL);
  if (chord.alt) modifiers.push_back(VK_MENU);
  if (chord.shift) modifiers.push_back(VK_SHIFT);
  std::vector<INPUT> events;
  for (const WORD m : modifiers) events.push_back(key_event(m, false, false));
  if (chord.key != named_key::character) {
    const virtual_key key = virtual_key_of(chord.key);
    events.push_back(key_event(key.code, key.extended, false));
    events.push_back(key_event(key.code, key.extended, true));
  } else if (dialog::is_cyrillic_letter(chord.character)) {
    // A Cyrillic letter is sent as the character itself: the keyboard layout the window runs
    // under may have no key for it (Wine on a machine set up for Latin keys has none), so no
    // virtual key would make it. While Alt is held (and Ctrl is not) the queue makes the event a
    // system key, WM_SYSKEYDOWN with VK_PACKET, and TranslateMessage turns VK_PACKET into
    // WM_SYSCHAR carrying the letter (under Wine only with alt_character_mend below): what a
    // person's Alt+letter on a Russian layout gives the dialog manager to match against the
    // controls' access keys. Without Alt it is WM_KEYDOWN and WM_CHAR, the letter typed. Either
    // way the letter is the small one, as a person types it, or the capital with Shift.
    const auto letter =
        static_cast<wchar_t>(chord.shift ? chord.character : small_letter(chord.character));
    events.push_back(unicode_event(letter, false));
    events.push_back(unicode_event(letter, true));
  } else {
    // A Latin letter or a digit: its own key ('A' to 'Z', '0' to '9'), which the layout turns
    // into the character (WM_SYSCHAR under Alt).
    const auto code = static_cast<WORD>(chord.character);
    events.push_back(key_event(code, false, false));
    events.push_back(key_event(code, false, true));
  }
  for (auto m = modifiers.rbegin(); m != modifiers.rend(); ++m) {
    events.push_back(key_event(*m, false, true));
  }
  return events;
}

std::vector<INPUT> character_events(wchar_t unit) {
  return {unicode_event(unit, false), unicode_event(unit, true)};
}

std::vector<INPUT> click_events(POINT screen) {
  const LONG x = absolute(screen.x, GetSystemMetrics(SM_CXSCREEN));
  const LONG y = absolute(screen.y, GetSystemMetrics(SM_CYSCREEN));
  std::vector<INPUT> events;
  for (const DWORD flags :
       {DWORD{MOUSEEVENTF_MOVE}, DWORD{MOUSEEVENTF_LEFTDOWN}, DWORD{MOUSEEVENTF_LEFTUP}}) {
    INPUT event{};
    event.type = INPUT_MOUSE;
    event.mi.dx = x;
    event.mi.dy = y;
    event.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    events.push_back(event);
  }
  return events;
}

namespace {

LRESULT CALLBACK mend_alt_character(int code, WPARAM removing, LPARAM message) {
  auto& m = *reinterpret_cast<MSG*>(message);
  if (code == HC_ACTION && removing == PM_REMOVE && m.message == WM_SYSCHAR &&
      (m.wParam & KF_ALTDOWN) != 0 && (HIWORD(m.lParam) & KF_ALTDOWN) == 0) {
    m.wParam &= ~static_cast<WPARAM>(KF_ALTDOWN);
    m.lParam |= static_cast<LPARAM>(KF_ALTDOWN) << 16;
  }
  return CallNextHookEx(nullptr, code, removing, message);
}

}  // namespace

alt_character_mend::alt_character_mend()
    : hook_(SetWindowsHookExW(WH_GETMESSAGE, &mend_alt_character, nullptr, GetCurrentThreadId())) {}

bool send_events(std::vector<INPUT>& events) {
  if (events.empty()) return true;
  const UINT taken = SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
  return taken == events.size();
}

}  // namespace tx::host::gui
