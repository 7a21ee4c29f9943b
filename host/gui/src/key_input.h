// A person's keyboard and mouse, as the events the system's input queue takes (SendInput): what a
// script's `keys`, `type` and `random-input` send to the dialog window, which then reaches the
// focused control (or the window under the pointer) through the same queue, translation and
// dialog manager as a real key or click.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "tx_host/dialog/key_names.h"
#include "win32_handles.h"

namespace tx::host::gui {

// The chord's events: its modifiers down (Ctrl, Alt, Shift), the key down and up, the modifiers
// up in reverse order.
std::vector<INPUT> chord_events(const dialog::key_chord& chord);

// One UTF-16 unit typed as a character of its own (KEYEVENTF_UNICODE): down and up.
std::vector<INPUT> character_events(wchar_t unit);

// A left click at `screen` (screen coordinates, in pixels): the pointer moved there, the button
// down and up, all in absolute coordinates.
std::vector<INPUT> click_events(POINT screen);

// Puts the events into the input queue; false unless the queue took all of them.
bool send_events(std::vector<INPUT>& events);

// While alive, gives this thread's WM_SYSCHAR made from a character sent under Alt (a Cyrillic
// letter, see chord_events) the character itself. Wine's TranslateMessage takes that message's
// character from the packet key's whole key data word, in which the queue has set the Alt flag
// (KF_ALTDOWN): Alt+з arrives as U+2437 instead of U+0437, which no access key matches. Such a
// message is told apart by its key data (Windows gives a WM_SYSCHAR the Alt flag in its own
// lParam; Wine's packet translation leaves it only the repeat count), and its character gets the
// flag cleared as the message is taken from the queue, before the dialog manager sees it.
class alt_character_mend {
 public:
  alt_character_mend();

 private:
  std::unique_ptr<HHOOK__, released_by<&UnhookWindowsHookEx>> hook_;
};

}  // namespace tx::host::gui
