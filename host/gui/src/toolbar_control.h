// The toolbar as a toolbar common control: one button a tool with the tool's 16 × 16 picture
// (greyed while the tool is disabled) or, for a tool without one, its caption; a separator
// between groups; the hint as the button's tooltip. The toolbar sits in a strip window of its
// own, which takes the toolbar's commands (WM_COMMAND names the button only to its parent) and
// hands each click to its tool. Enabled and visible states are read again when the tools tell of
// a change, texts and pictures when they tell of theirs.
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

 private:
  struct tool {
    std::string id;  // UTF-8
    tx_custom_pointer pair{};
    int command = 0;
    bool captioned = false;                       // the button shows the id when not
    std::optional<dialog::picture_size> picture;  // the size the tool's picture came in
  };
  struct button_values;

  static LRESULT CALLBACK strip_procedure(HWND strip, UINT message, WPARAM wparam, LPARAM lparam);
  // Reads the tools and makes the buttons afresh.
  void load();
  void read_texts();
  void fit_text_buttons();
  LRESULT draw_text_button(NMTBCUSTOMDRAW& draw) const;
  void read_states();
  void invoke(int command);
  const tool* tool_of(int command) const noexcept;
  std::vector<button_values> buttons() const;

  tx_custom_pointer toolbar_;
  HWND strip_ = nullptr;
  HWND bar_ = nullptr;
  HWND tips_ = nullptr;
  unique_image_list pictures_;
  unique_image_list greyed_;
  std::vector<tool> tools_;
  int side_;
};

}  // namespace tx::host::gui
