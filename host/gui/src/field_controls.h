// The dialog window's controls for the plain elements (one file each, field_controls.cpp for
// what they share): a label (static text), and the fields —
// check box, drop-down list, integer input (an edit with an up-down control) and text input
// with history (an editable combo box whose list is the history, most recent first). A field
// with a caption shows it as static text to its left; fields standing in the same column share
// one caption width, so that their boxes line up.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "tx/abi.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/refusal.h"
#include "tx_host/gui/control.h"
#include "tx_host/window_logic/access_keys.h"
#include "win32_handles.h"

namespace tx::host::gui {

// Heights in dialog units of the standard controls: a line of text, an edit or combo box, a
// check box.
inline constexpr int kTextHeightDlu = 8;
inline constexpr int kBoxHeightDlu = 12;
inline constexpr int kCheckHeightDlu = 10;

class label_control final : public control {
 public:
  label_control(HWND parent, tx_custom_pointer label, const metrics& m);
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

 private:
  tx_custom_pointer label_;
  unique_window text_;
};

class field_control : public control {
 public:
  bool is_field() const noexcept override { return true; }
  void show(bool shown) override;
  // The caption as shown (what a script names the field by), without its access key's marker.
  virtual std::string caption() const;
  // The access key the window chose for the caption; shown in the label (or in the check box).
  void set_access_key(const window_logic::assigned_key& key);
  bool enabled() const noexcept;
  // The window that takes the field's input and its keyboard focus (an editable combo box's
  // edit is a child of it).
  HWND box() const noexcept { return box_.get(); }
  // The width the caption needs, and the width given to the captions of its column.
  int caption_width(const metrics& m) const;
  void set_caption_column(int width) noexcept { caption_column_ = width; }
  // What a script's `set NAME VALUE` does: the input a person would give the control, sent to
  // the control itself; the refusal when `value` is none the control takes.
  virtual std::optional<dialog::refusal> enter(std::string_view value, std::string_view name) = 0;

 protected:
  field_control(HWND parent, const dialog::element& e, const metrics& m);
  // The box's area right of the caption column, within `area`.
  RECT box_area(const RECT& area) const;
  // Reads the caption and the enabled state again.
  void refresh_caption_and_state();
  size_request with_caption(const metrics& m, int box_width, int box_height) const;

  // While alive, the control's writes into its own windows are not taken for a person's input
  // (their notifications come back to on_command).
  class updating_scope {
   public:
    explicit updating_scope(field_control& control) noexcept
        : control_(control), was_(std::exchange(control.updating_, true)) {}
    updating_scope(const updating_scope&) = delete;
    updating_scope& operator=(const updating_scope&) = delete;
    ~updating_scope() { control_.updating_ = was_; }

   private:
    field_control& control_;
    bool was_;
  };

  dialog::element element_;
  unique_window caption_;  // none for a check box, whose caption is its own
  unique_window box_;
  int caption_column_ = 0;
  int gap_ = 0;
  bool updating_ = false;
  window_logic::assigned_key key_;
};

class checkbox_control final : public field_control {
 public:
  checkbox_control(HWND parent, const dialog::element& e, const metrics& m);
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::string caption() const override;
  std::optional<dialog::refusal> enter(std::string_view value, std::string_view name) override;

 private:
  unique_window tip_;
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
  std::optional<dialog::refusal> enter(std::string_view value, std::string_view name) override;
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
  std::optional<dialog::refusal> enter(std::string_view value, std::string_view name) override;

 private:
  void load_history();
  void load_text();
  bool typed_ = false;
};

class integer_control final : public field_control {
 public:
  integer_control(HWND parent, const dialog::element& e, const metrics& m);
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  bool on_command(HWND from, UINT code, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;
  std::optional<dialog::refusal> enter(std::string_view value, std::string_view name) override;

 private:
  void load_value();
  int box_width_;
  unique_window spin_;
  bool typed_ = false;
};

// The width the caption of a field of element `e` takes beside its box; 0 for an element shown
// without one (a check box carries its caption in itself).
int caption_width(const dialog::element& e, const metrics& m);

// The control for a label or a field element; null for any other kind.
std::unique_ptr<control> make_plain_control(HWND parent, const dialog::element& e,
                                            const metrics& m);

}  // namespace tx::host::gui
