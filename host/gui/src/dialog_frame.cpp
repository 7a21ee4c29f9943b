// The dialog window's frame: an empty modal dialog made from a template in memory, its fonts and
// dialog units, and its life from showing to closing.
#include <algorithm>

#include "dialog_window.h"
#include "native.h"
#include "outline_control.h"
#include "tx/toolkit/button_box.h"
#include "tx/toolkit/docker.h"
#include "tx_host/dialog/faulty_row.h"
#include "window_constants.h"

namespace tx::host::gui {
namespace {

// The template's size before the window is fitted to its content, in dialog units.
constexpr WORD kFirstWidth = 100;
constexpr WORD kFirstHeight = 50;
constexpr WORD kFontPoints = 8;

// An empty modal dialog in the shell dialog font, resizable; controls are added at run time.
std::vector<WORD> dialog_template() {
  std::vector<WORD> t;
  const DWORD style =
      WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME | DS_SHELLFONT;
  t.push_back(LOWORD(style));
  t.push_back(HIWORD(style));
  t.push_back(0);  // extended style
  t.push_back(0);
  t.push_back(0);  // no controls
  for (const WORD position : {WORD{0}, WORD{0}, kFirstWidth, kFirstHeight}) t.push_back(position);
  t.push_back(0);  // no menu
  t.push_back(0);  // the standard dialog class
  t.push_back(0);  // no title yet
  t.push_back(kFontPoints);
  for (const wchar_t c : std::wstring_view(L"MS Shell Dlg 2")) t.push_back(static_cast<WORD>(c));
  t.push_back(0);
  return t;
}

}  // namespace

dialog_window::dialog_window(tx_custom_pointer docker, tx_custom_pointer buttons,
                             std::int32_t language_offset, HWND owner)
    : docker_(docker), buttons_(buttons), language_(language_offset), owner_(owner) {
  create_frame();
  build();
  views_.set_listener([this](void* element, std::uint32_t what) { changed(element, what); });
  views_.attach(docker_);
  align_captions();
  fit();
  layout();
  order_tabs();
  if (owner_ != nullptr) {
    owner_was_enabled_ = IsWindowEnabled(owner_) != FALSE;
    EnableWindow(owner_, FALSE);
  }
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  keep_focus();
  UpdateWindow(window_);
}

dialog_window::~dialog_window() {
  views_.detach();
  root_.reset();
  if (owner_ != nullptr && owner_was_enabled_) EnableWindow(owner_, TRUE);
  DestroyWindow(window_);
}

void dialog_window::create_frame() {
  const std::vector<WORD> t = dialog_template();
  window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                       reinterpret_cast<LPCDLGTEMPLATEW>(t.data()), owner_,
                                       &dialog_window::procedure, reinterpret_cast<LPARAM>(this));
  const std::optional<std::string> caption = dialog::collect_text(
      [this](tx_custom_pointer v) { return call(docker_, &tx_docker_interface_92::caption, v); });
  set_window_text(window_, caption.value_or(""));
  metrics_.font = reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0));
  // MapDialogRect answers the dialog's base units for 4 × 8 dialog units.
  RECT units{0, 0, 4, 8};
  MapDialogRect(window_, &units);
  metrics_.base_x = std::max<int>(units.right, 1);
  metrics_.base_y = std::max<int>(units.bottom, 1);
  LOGFONTW bold{};
  GetObjectW(metrics_.font, sizeof bold, &bold);
  bold.lfWeight = FW_BOLD;
  bold_font_.reset(CreateFontIndirectW(&bold));
  metrics_.bold_font = bold_font_.get();
}

void dialog_window::press(std::int32_t index) {
  if (closed_with_) return;
  const bool may_close = call(buttons_, &tx_button_box_interface_2::press, index);
  if (!may_close && index >= 0) {
    // Refused: the first faulty row, if any, is selected, and shown once the list has it.
    if (outline_control* list = outline(); list != nullptr) {
      reveal_ = dialog::select_first_faulty(list->element());
    }
    return;
  }
  closed_with_ = index;
  if (owner_ != nullptr && owner_was_enabled_) EnableWindow(owner_, TRUE);
  ShowWindow(window_, SW_HIDE);
}

}  // namespace tx::host::gui
