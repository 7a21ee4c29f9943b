// The outline's in-place editor: a box over one cell, opened by F2 or a double click; what it
// keeps is handed to the cell's column.
#include "outline_action_scope.h"
#include "outline_control.h"
#include "tx/toolkit/outline.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::gui {
namespace {

// The box covers the cell's text with a border of its own around it: this much taller above and
// below, and this much in from the left of a cell after the first.
constexpr int kEditorBorder = 2;

}  // namespace

void outline_control::open_editor(std::size_t position, std::size_t column) {
  close_editor(false);
  if (position >= rows_.size()) return;
  const tx_custom_pointer row = rows_[position].row;
  if (!reader_.editable(column, row)) return;
  SendMessageW(list(), LVM_ENSUREVISIBLE, position, FALSE);
  RECT box{LVIR_LABEL, static_cast<LONG>(column), 0, 0};
  if (!SendMessageW(list(), LVM_GETSUBITEMRECT, position, reinterpret_cast<LPARAM>(&box))) return;
  InflateRect(&box, 0, kEditorBorder);
  if (column > 0) box.left += kEditorBorder;
  // An empty new name starts from the name the row has now, to be changed rather than retyped.
  editor_start_ = cell(column, row);
  if (editor_start_.empty() && column > 0) editor_start_ = cell(0, row);
  editor_ = std::make_unique<cell_editor>(list(), box, font_, editor_start_, close_editor_message_,
                                          ++editor_serial_);
  editor_row_ = row;
  editor_column_ = column;
}

void outline_control::close_editor(bool keep) {
  if (!editor_) return;
  const std::u16string text = editor_->text();
  const tx_custom_pointer row = editor_row_;
  const std::size_t column = editor_column_;
  editor_.reset();
  if (!keep || column >= reader_.columns().size()) return;
  action_scope scope(*this);
  call(reader_.columns()[column], &tx_string_outline_column_interface_10::set_text, row,
       text.c_str());
  if (!rows_pending_) InvalidateRect(list(), nullptr, TRUE);
}

bool outline_control::editor_changed() const { return editor_ && editor_->text() != editor_start_; }

}  // namespace tx::host::gui
