// The outline as a tree-list: a virtual list view (LVS_OWNERDATA) in report view whose first
// column shows each row's expander, tick box and first text, indented by depth, and whose other
// columns show the further texts under the plug-in's headers. The list asks only for the rows on
// screen; they come from a flat index of the shown rows (visible_rows), rebuilt when the plug-in
// redraws and spliced when one row expands or collapses. Every text, tick, state and look is
// read from the element when the list asks for it; every user action goes back through it.
//
// The list's selection is the rows' selection: a change the user makes in the list is handed to
// the outline row by row, and the list is brought back in line with the outline whenever the
// rows are read again. A tick on a selected row ticks every selected row.
//
// The script actions send the input a person would give to the list view's own window
// procedure (a click on a box or an expander, F2 and keys typed into the in-place editor, a
// selection change) and answer the text driver's error texts, empty when done.
//
// The control's work is spread by what it does: creation and sizing (outline_control.cpp), the
// rows and the list's selection (outline_rows.cpp), the list's notifications and drawing
// (outline_notifications.cpp, outline_drawing.cpp), a person's clicks and keys (outline_input.cpp,
// outline_type_ahead.cpp), the in-place editor (outline_editing.cpp), the script actions
// (outline_actions.cpp) and printing (outline_printing.cpp).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cell_editor.h"
#include "outline_images.h"
#include "tx/abi.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/gui/control.h"
#include "tx_host/window_logic/visible_rows.h"
#include "win32_handles.h"

namespace tx::host::gui {

class outline_control final : public control {
 public:
  // `outline`: a tx_outline_interface_32 pair, valid while the control lives.
  outline_control(HWND parent, tx_custom_pointer outline, const metrics& m);
  ~outline_control() override;

  size_request request(const metrics& m) const override;
  // The outline element (a tx_outline_interface_32 pair).
  tx_custom_pointer element() const noexcept { return reader_.outline(); }
  // Shows `row`, which the plug-in made its only selected row, as such: selected, scrolled into
  // view, with the focus mark and the list the keyboard focus; nothing when the row is not shown.
  void reveal(tx_custom_pointer row);
  // The least height the list may shrink to below its request when the window is made smaller.
  static int least_height(const metrics& m);
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  bool on_notify(const NMHDR& header, LRESULT& result) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

  // Script actions: `address` names a row as the text driver's find_row reads it.
  std::optional<dialog::refusal> tick(std::string_view address, bool on);
  std::optional<dialog::refusal> select(std::string_view address, bool on);
  std::optional<dialog::refusal> expand(std::string_view address, bool on);
  // Types `text` into the row's first editable cell, then presses Enter (or Esc).
  std::optional<dialog::refusal> rename(std::string_view address, std::string_view text,
                                        bool enter);

  // The list view.
  HWND list() const noexcept { return list_.get(); }
  // How many rows the list shows.
  std::size_t shown_rows() const noexcept { return rows_.size(); }

 private:
  // Keeps rebuilding for the end of an action whose calls into the plug-in may tell of new rows.
  class action_scope;

  // The rows and the list's selection.
  void read_headers();
  void rebuild();
  // Makes the list's selection from `from` on what `wanted` (ascending positions) says.
  void select_in_list(std::size_t from, const std::vector<std::size_t>& wanted);
  std::vector<std::size_t> list_selection(std::size_t from) const;
  void set_list_state(std::size_t position, UINT state, UINT mask);
  void toggle_expanded(std::size_t position);
  // Hands a selection change the user made in the list to the rows `first` to `last`.
  void handed_selection(std::size_t first, std::size_t last, bool on);

  // A person's input on the list: the list's messages before its own procedure sees them.
  std::optional<LRESULT> on_list_message(UINT message, WPARAM wparam, LPARAM lparam);
  std::optional<LRESULT> on_click(UINT message, LPARAM lparam);
  std::optional<LRESULT> on_key(WPARAM key);
  std::optional<LRESULT> on_character(WPARAM character);
  std::optional<std::size_t> focused() const;
  void toggle_tick(std::size_t position);
  LRESULT find_typed(const NMLVFINDITEMW& find) const;

  // The in-place editor.
  void open_editor(std::size_t position, std::size_t column);
  void close_editor(bool keep);
  // Whether the editor's text differs from its cell's.
  bool editor_changed() const;

  // What the list asks to show.
  std::u16string cell(std::size_t column, tx_custom_pointer row) const;
  void fill_item(LVITEMW& item) const;
  LRESULT custom_draw(NMLVCUSTOMDRAW& draw) const;

  // The list's position of the row `address` names, or why there is none.
  struct target {
    std::optional<std::size_t> position;
    std::optional<dialog::refusal> refused;
  };
  target find(std::string_view address) const;
  // Scrolls the row into view and answers the centre of its part (an LVIR_* value, or -1 for
  // the expander).
  POINT point_at(std::size_t position, int part) const;
  void click(POINT at, WPARAM keys = 0) const;

  dialog::outline_reader reader_;
  HFONT font_;
  HFONT bold_font_;
  // The list shares them: they outlive it.
  outline_images images_;
  window_logic::visible_rows rows_;
  unique_window list_;
  // Let go before the list is destroyed.
  window_subclass subclass_;
  // Over the list: closed before it.
  std::unique_ptr<cell_editor> editor_;
  tx_custom_pointer editor_row_{};
  // The text the editor started with.
  std::u16string editor_start_;
  std::size_t editor_column_ = 0;
  LPARAM editor_serial_ = 0;
  UINT close_editor_message_;
  UINT rebuild_message_;
  int width_ = 0;
  // While the list is being brought in line with the rows, its notifications are not handed on.
  bool syncing_ = false;
  // Nested actions under way, and whether the plug-in told of new rows during them.
  int busy_ = 0;
  bool rows_pending_ = false;
  bool rebuild_posted_ = false;
};

}  // namespace tx::host::gui
