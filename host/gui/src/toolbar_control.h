// The toolbar as a toolbar common control: one button a tool with the tool's 16 × 16 picture
// (greyed while the tool is disabled) or, for a tool without one, its caption; a separator
// between groups; the hint as the button's tooltip. The toolbar sits in a strip window of its
// own, which takes the toolbar's commands (WM_COMMAND names the button only to its parent) and
// hands each click to its tool. Enabled and visible states are read again when the tools tell of
// a change, texts and pictures when they tell of theirs.
//
// From the keyboard the toolbar is one tab stop: with the focus, one tool is hot (framed);
// Left and Right, Home and End move among the shown, enabled tools, Space and Enter press the
// hot one. Each tool may have an access key, given by the window: a tool that shows its caption
// shows the key underlined, a tool shown as a picture tells it in its tooltip; Alt and the key
// press the tool (the window's loop hands the key over, see press_access_key).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/picture_reader.h"
#include "tx_host/dialog/toolbar_format.h"
#include "tx_host/gui/control.h"
#include "tx_host/window_logic/access_keys.h"
#include "win32_handles.h"

namespace tx::host::gui {

class toolbar_control final : public control {
 public:
  // `toolbar`: a tx_toolbar_interface_6 pair, valid while the control lives.
  toolbar_control(HWND parent, tx_custom_pointer toolbar, const metrics& m);
  ~toolbar_control() override;

  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

  // What the buttons show, one a tool in toolbar order, read back from the toolbar.
  std::vector<dialog::tool_values> tools() const;
  // Clicks the button of tool `position` (in the order of tools()) as a person does.
  void click(std::size_t position);
  // The `tools` listing: one line a tool, read from the buttons.
  std::string describe() const;

  HWND toolbar() const noexcept { return bar_; }

  // The texts the tools' access keys are chosen from (a caption, else the id), in toolbar order;
  // and the keys chosen for them, in the same order.
  std::vector<std::u16string> key_captions() const;
  void set_access_keys(std::vector<window_logic::assigned_key> keys);
  // Presses the shown, enabled tool whose access key is `key` (in key_of's form). True when a
  // tool has that key, pressed or not (a greyed tool takes its key and does nothing).
  bool press_access_key(char16_t key);
  // The tool shown hot (framed while the toolbar has the focus), in the order of tools(); none
  // when no tool is.
  std::optional<std::size_t> hot_tool() const;

 private:
  struct tool {
    std::string id;  // UTF-8
    tx_custom_pointer pair{};
    int command = 0;
    bool captioned = false;                       // the button shows the id when not
    bool hinted = false;                          // the tooltip shows no hint when not
    std::optional<dialog::picture_size> picture;  // the size the tool's picture came in
  };
  struct button_values;

  static LRESULT CALLBACK strip_procedure(HWND strip, UINT message, WPARAM wparam, LPARAM lparam);
  // Reads the tools and makes the buttons afresh.
  void load();
  void read_texts();
  void fit_text_buttons();
  LRESULT draw_button(NMTBCUSTOMDRAW& draw) const;
  void draw_focus(const NMTBCUSTOMDRAW& draw) const;
  void read_states();
  void invoke(int command);
  const tool* tool_of(int command) const noexcept;
  std::vector<button_values> buttons() const;
  // The tool's access key (none past the keys the window gave).
  const window_logic::assigned_key& key_for(const tool& t) const noexcept;

  // The keyboard (toolbar_keys.cpp): what the dialog manager leaves to the toolbar, the keys.
  std::optional<LRESULT> on_bar_message(UINT message, WPARAM wparam, LPARAM lparam);
  // Whether the button with `command` is shown and enabled.
  bool pressable(int command) const noexcept;
  // Moves the hot tool to the previous or the next pressable tool, or to the first or the last.
  enum class hot_move { previous, next, first, last };
  void move_hot(hot_move move);
  void set_hot(int command);
  // The tool that is hot when the toolbar takes the focus: the last one used, else the first.
  int first_hot() const noexcept;

  tx_custom_pointer toolbar_;
  HWND strip_ = nullptr;
  HWND bar_ = nullptr;
  HWND tips_ = nullptr;
  unique_image_list pictures_;
  unique_image_list greyed_;
  std::vector<tool> tools_;
  std::vector<window_logic::assigned_key> keys_;
  int last_used_ = 0;  // the command last pressed; 0: none
  int side_;
  window_subclass keyboard_;
};

}  // namespace tx::host::gui
