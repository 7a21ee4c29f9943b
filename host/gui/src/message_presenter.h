// The warnings and the progress a plug-in reports while its dialog window is shown: a warning
// is a message box over the dialog; a commit that lasts gets a small window with a progress
// bar. Under a script the box is pressed as soon as it is up (after checking that it shows the
// warning over the dialog), so that the script goes on.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace tx::host::gui {

// A commit shorter than this shows no progress window.
inline constexpr ULONGLONG progress_delay_ms = 400;

class message_presenter {
 public:
  // Shows reports over `dialog` from now until destroyed.
  message_presenter(HWND dialog, std::int32_t language_offset, bool dismiss);
  ~message_presenter();
  message_presenter(const message_presenter&) = delete;
  message_presenter& operator=(const message_presenter&) = delete;

  void warning(const char16_t* text);
  void progress_started();
  void progress_reported(double fraction);
  void progress_ended();

 private:
  void show_progress_window();

  HWND dialog_;
  std::int32_t language_;
  bool dismiss_;
  ULONGLONG progress_since_ = 0;
  bool in_progress_ = false;
  HWND progress_window_ = nullptr;
  HWND progress_bar_ = nullptr;
};

}  // namespace tx::host::gui
