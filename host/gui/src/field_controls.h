// The dialog window's controls for the plain elements: a label (static text), and the fields —
// check box, drop-down list, integer input (an edit with an up-down control) and text input
// with history (an editable combo box whose list is the history, most recent first). A field
// with a caption shows it as static text to its left; fields standing in the same column share
// one caption width, so that their boxes line up.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "tx/abi.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/gui/control.h"

namespace tx::host::gui {

class label_control final : public control {
 public:
  label_control(HWND parent, tx_custom_pointer label, const metrics& m);
  ~label_control() override;
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

 private:
  tx_custom_pointer label_;
  HWND text_;
};

class field_control : public control {
 public:
  ~field_control() override;
  bool is_field() const noexcept override { return true; }
  void show(bool shown) override;
  // The caption as shown (what a script names the field by).
  virtual std::string caption() const;
  bool enabled() const noexcept;
  // The width the caption needs, and the width given to the captions of its column.
  int caption_width(const metrics& m) const;
  void set_caption_column(int width) noexcept { caption_column_ = width; }
  // What a script's `set NAME VALUE` does: the input a person would give the control, sent to
  // the control itself. The error (as the text host words it), empty when done.
  virtual std::string enter(std::string_view value, std::string_view name) = 0;

 protected:
  field_control(HWND parent, const dialog::element& e, const metrics& m);
  // The box's area right of the caption column, within `area`.
  RECT box_area(const RECT& area) const;
  // Reads the caption and the enabled state again.
  void refresh_caption_and_state();
  size_request with_caption(const metrics& m, int box_width, int box_height) const;

  dialog::element element_;
  HWND caption_ = nullptr;  // none for a check box, whose caption is its own
  HWND box_ = nullptr;
  int caption_column_ = 0;
  int gap_ = 0;
  // Set while the control writes into its own windows, so that their notifications are not
  // taken for a person's input.
  bool updating_ = false;
};

class checkbox_control final : public field_control {
 public:
  checkbox_control(HWND parent, const dialog::element& e, const metrics& m);
  ~checkbox_control() override;
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::string caption() const override;
  std::string enter(std::string_view value, std::string_view name) override;

 private:
  HWND tip_ = nullptr;
  std::wstring tip_text_;
};

class dropdown_control final : public field_control {
 public:
  dropdown_control(HWND parent, const dialog::element& e, const metrics& m);
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::string enter(std::string_view value, std::string_view name) override;
  // The items as the list shows them.
  std::vector<std::string> items() const;
  // Picks item `index` as a person does: the list's selection, then its notification.
  void choose(int index);

 private:
  void load_items();
  int item_height_ = 0;
};

class input_control final : public field_control {
 public:
  input_control(HWND parent, const dialog::element& e, const metrics& m);
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::string enter(std::string_view value, std::string_view name) override;

 private:
  void load_history();
  void load_text();
  bool typed_ = false;
};

class integer_control final : public field_control {
 public:
  integer_control(HWND parent, const dialog::element& e, const metrics& m);
  ~integer_control() override;
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::string enter(std::string_view value, std::string_view name) override;

 private:
  void load_value();
  int box_width_;
  HWND spin_ = nullptr;
  bool typed_ = false;
};

// The control for a label or a field element; null for any other kind.
std::unique_ptr<control> make_plain_control(HWND parent, const dialog::element& e,
                                            const metrics& m);

}  // namespace tx::host::gui
