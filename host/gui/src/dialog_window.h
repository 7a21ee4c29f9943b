// The plug-in's dialog as a real window: a modal dialog whose title is the docker's caption,
// whose content is one native control per leaf element laid out by the plug-in's grids, group
// boxes and stacks, and whose buttons are the button box's, at the bottom right. Every text,
// value and state is read through the element interfaces and kept only in the controls; every
// action of a person goes back through the same interfaces; a change the plug-in tells a view
// makes the window read that element again once the message that caused it has been handled by
// the window's own loop — never inside a nested loop (a message box's) while the plug-in's call
// that told it is still running.
//
// The window's code is split by what it does: dialog_frame.cpp (the empty dialog, its font, its
// life), window_build.cpp (the controls from the elements' description), window_fit.cpp (the
// window's size and the buttons' row), window_refresh.cpp (reading what the plug-in told),
// window_loop.cpp (the message loops and the dialog procedure), window_focus.cpp (the tab order
// and the focus), window_access_keys.cpp (the access keys), window_parts.cpp (the printing and
// the parts a script acts on).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/element_views.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/gui/control.h"
#include "win32_handles.h"
#include "window_layout.h"

namespace tx::host::gui {

class field_control;
class dropdown_control;
class outline_control;
class toolbar_control;

class dialog_window {
 public:
  // Shows the dialog over `owner`, a window of this process (disabled until the dialog closes),
  // or over none. `docker` and `buttons` are borrowed while the window lives.
  dialog_window(tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language_offset,
                HWND owner);
  ~dialog_window();
  dialog_window(const dialog_window&) = delete;
  dialog_window& operator=(const dialog_window&) = delete;

  HWND handle() const noexcept { return window_; }
  // Set once a button or the close box closed the dialog: the button's index, -1 the close box.
  std::optional<std::int32_t> closed_with() const noexcept { return closed_with_; }
  std::int32_t language_offset() const noexcept { return language_; }

  // Delivers every message waiting for this thread, then returns.
  void pump();
  // A person's loop: until the dialog closes, or until the thread is asked to quit (the quit
  // message is then left for the loop outside).
  std::int32_t run_modal();

  // What the window shows, in the text host's form (`print`).
  std::string render() const;
  // The parts a script acts on, found afresh each time, in the order `print` shows them.
  std::vector<field_control*> fields() const;
  dropdown_control* operation_selector() const;
  outline_control* outline() const;
  std::vector<toolbar_control*> toolbars() const;
  // The shown buttons: their windows and captions, left to right, with the button's index.
  struct button {
    HWND window;
    std::string caption;
    std::int32_t index;
  };
  std::vector<button> shown_buttons() const;

  // Catches up with elements the plug-in added since (hands them their views).
  void attach_views() { views_.attach(docker_); }
  // Whether the plug-in told of a change since the last call.
  bool take_changed() noexcept { return views_.take_changes() != 0; }

 private:
  static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  INT_PTR handle_message(UINT message, WPARAM w, LPARAM l);

  void create_frame();
  void build();
  void build_buttons();
  std::unique_ptr<window_node> build_node(dialog::element_node described);
  void build_children(window_node& node, std::vector<dialog::element_node> described);
  void register_node(window_node& node);
  // Handles what the message loop took, then reads what the plug-in told meanwhile.
  void deliver(MSG& message);
  // Gives the buttons, the tools and the fields' labels their access keys (window_access_keys.cpp):
  // first those that stay whatever operation is shown, then the shown panel's fields; after the
  // controls are built and whenever the plug-in changed a panel or a text.
  void assign_access_keys();
  // An access key typed (Alt and the key, or the key alone where the focused control takes no
  // characters): a tool's is pressed here and the message taken, since the dialog manager knows
  // only the keys it finds in the controls' texts; for those, the character is handed on in the
  // case the text shows it.
  bool take_access_key(MSG& message);
  void align_captions();
  // Puts the child windows in reading order, which the dialog manager's Tab follows.
  void order_tabs();
  // Gives the focus to the first control when no control of the dialog has it.
  void keep_focus();
  void layout();
  void fit();
  void show_tree(window_node& node, bool shown);
  void press(std::int32_t index);
  // Reads what the plug-in told, then brings a row to reveal into view.
  void refresh_pending();
  void read_pending();
  void changed(void* element, std::uint32_t what);
  size_request content_request() const;

  tx_custom_pointer docker_;
  tx_custom_pointer buttons_;
  std::int32_t language_;
  HWND owner_;
  bool owner_was_enabled_ = false;
  HWND window_ = nullptr;
  metrics metrics_;
  unique_font bold_font_;
  std::unique_ptr<window_node> root_;
  std::vector<std::pair<HWND, std::int32_t>> buttons_shown_;
  // Which node shows each element (tools, columns and checks map to their toolbar or outline).
  std::unordered_map<void*, window_node*> nodes_;
  // What the plug-in told since the window last read it, by element.
  std::unordered_map<void*, std::uint32_t> pending_;
  // A wake-up is in the queue for the loop that reads pending_.
  bool wake_posted_ = false;
  std::optional<std::int32_t> closed_with_;
  // A row to bring into view once the changes in hand have been read.
  tx_custom_pointer reveal_{};
  dialog::element_views views_;
  SIZE minimum_{};
  // Each access key that a label, a check box or a button marks, with the character it marks.
  std::vector<std::pair<char16_t, char16_t>> marked_keys_;
};

}  // namespace tx::host::gui
