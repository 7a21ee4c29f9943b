#include "input_delivery.h"

#include <cstdio>

#include "dialog_window.h"
#include "key_input.h"
#include "native.h"

namespace tx::host::gui {
namespace {

// The window has handled an input once no message has come for this long after it. Timers do not
// count: they go on while the window waits (an edit's caret blinks; under Wine its timer may be
// due at every look), and the loop delivers them like any other message.
constexpr DWORD kSettleMs = 20;
constexpr DWORD kAwaited = QS_ALLINPUT & ~QS_TIMER;
// How long the watch waits for a box's text from a thread that may be stuck.
constexpr UINT kAskBoxMs = 1000;

struct box_search {
  HWND dialog = nullptr;
  HWND found = nullptr;
};

// A shown message box (the dialog class) of the thread other than the dialog itself.
BOOL CALLBACK find_box(HWND window, LPARAM search) {
  auto& s = *reinterpret_cast<box_search*>(search);
  wchar_t name[16]{};
  GetClassNameW(window, name, 16);
  if (window == s.dialog || std::wstring_view(name) != L"#32770" || !IsWindowVisible(window)) {
    return TRUE;
  }
  s.found = window;
  return FALSE;
}

// Whether the dialog is where the keyboard's input goes: the foreground window, brought there
// when it is not.
bool in_front(HWND dialog) {
  if (GetForegroundWindow() == dialog) return true;
  SetForegroundWindow(dialog);
  return GetForegroundWindow() == dialog;
}

}  // namespace

input_delivery::input_delivery(dialog_window& window, std::size_t line, std::string verb)
    : window_(window),
      line_(line),
      verb_(std::move(verb)),
      thread_(GetCurrentThreadId()),
      watch_([this] { watch(); }) {}

input_delivery::~input_delivery() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  watch_.join();
}

std::optional<std::string> input_delivery::deliver(std::vector<INPUT> events, std::size_t number,
                                                   const std::string& what) {
  if (!in_front(window_.handle())) {
    return std::string("the window is not in front, so input ") + std::to_string(number) + " (" +
           what + ") would go to another window";
  }
  {
    const std::lock_guard lock(mutex_);
    since_ = std::chrono::steady_clock::now();
    number_ = number;
    what_ = what;
  }
  wake_.notify_all();
  const bool sent = send_events(events);
  while (sent) {
    window_.pump();
    if (window_.closed_with()) break;
    if (MsgWaitForMultipleObjectsEx(0, nullptr, kSettleMs, kAwaited, MWMO_INPUTAVAILABLE) ==
        WAIT_TIMEOUT) {
      break;
    }
  }
  {
    const std::lock_guard lock(mutex_);
    since_.reset();
  }
  if (!sent) {
    return std::string("the system's input queue did not take input ") + std::to_string(number) +
           " (" + what + ")";
  }
  return std::nullopt;
}

void input_delivery::watch() {
  std::unique_lock lock(mutex_);
  while (!stopping_) {
    if (!since_) {
      wake_.wait(lock);
      continue;
    }
    const auto deadline = *since_ + std::chrono::milliseconds(input_patience_ms);
    if (std::chrono::steady_clock::now() < deadline) {
      wake_.wait_until(lock, deadline);
      continue;
    }
    // The input thread is still inside deliver() and cannot take the lock back: tell and end.
    const std::string message = stuck_message();
    std::fflush(stdout);
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), 3);
  }
}

std::string input_delivery::stuck_message() {
  std::string message = std::string("txhost: line ") + std::to_string(line_) + ": " + verb_ +
                        ", input " + std::to_string(number_) + " (" + what_ + "): ";
  box_search search{window_.handle(), nullptr};
  EnumThreadWindows(thread_, &find_box, reinterpret_cast<LPARAM>(&search));
  if (search.found != nullptr) {
    // Asked with a time limit: the box's thread may take no messages either.
    wchar_t text[1024]{};
    DWORD_PTR copied = 0;
    SendMessageTimeoutW(GetDlgItem(search.found, 0xFFFF), WM_GETTEXT, 1024,
                        reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, kAskBoxMs, &copied);
    message.append("a message box nobody could press is still up after ")
        .append(std::to_string(input_patience_ms / 1000))
        .append(" s: «")
        .append(utf8(text))
        .append("»");
  } else {
    message.append("the window has not handled it in ")
        .append(std::to_string(input_patience_ms / 1000))
        .append(" s (it takes no more messages)");
  }
  message += "; txhost stops, nothing saved\n";
  return message;
}

}  // namespace tx::host::gui
