// Sends a script's keys and clicks to the dialog window through the system's input queue and
// waits, as a person does before the next key, until the window has handled each: its loop
// delivers every message until none comes for a moment (a warning the input raised is a message
// box, pressed by the window's presenter inside that loop). A watch on a thread of its own ends
// txhost (exit status 3, the project left as it was) when one input is not handled within
// input_patience_ms — a box nobody can press, or a window that takes no more messages — naming
// the script's line and the input, so that a hang is a failed run, never a stuck one.
#pragma once

#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "key_input.h"

namespace tx::host::gui {

class dialog_window;

inline constexpr int input_patience_ms = 10'000;

class input_delivery {
 public:
  // Inputs for `window`, whose messages this thread delivers, sent for the script's line `line`
  // by the command `verb`.
  input_delivery(dialog_window& window, std::size_t line, std::string verb);
  ~input_delivery();
  input_delivery(const input_delivery&) = delete;
  input_delivery& operator=(const input_delivery&) = delete;

  // Sends input number `number` (`what`: its key's name, or "a click at X,Y") and delivers the
  // window's messages until it has been handled; what went wrong when it could not be sent.
  std::optional<std::string> deliver(std::vector<INPUT> events, std::size_t number,
                                     const std::string& what);

 private:
  void watch();
  // What the watch tells when an input outlasts its patience.
  std::string stuck_message();

  dialog_window& window_;
  std::size_t line_;
  std::string verb_;
  DWORD thread_;
  std::mutex mutex_;
  std::condition_variable wake_;
  // Set while an input is being handled: since when, its number and name.
  std::optional<std::chrono::steady_clock::time_point> since_;
  std::size_t number_ = 0;
  std::string what_;
  bool stopping_ = false;
  alt_character_mend mend_;
  // Started last, once everything it reads is made; joined first.
  std::thread watch_;
};

}  // namespace tx::host::gui
