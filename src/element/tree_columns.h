// The columns of the rename dialog's tree: the check boxes, the old names (the host's current
// captions) and the new names. Cells are read from the nodes on demand.
#pragma once

#include "toolkit/outline_columns.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element::detail {

// One text column of the tree. The two differ only in which name a row shows and whether it can
// be typed over: the old names are read-only, the new names are editable on every row that
// stands for an element and emphasised where the latest step changed them.
class name_column final : public toolkit::string_outline_column {
 public:
  enum class shown { old_name, new_name };

  name_column(project_rename_widget& context, shown names);

  bool text(custom_pointer row, custom_pointer visitor) override;
  bool editable(custom_pointer row) override;
  bool emphasized(custom_pointer row) override;

 protected:
  // A typed name is one undoable step of the name store; its `changed` brings the view up to
  // date.
  void edit(custom_pointer row, std::u16string_view text) override;

 private:
  project_rename_widget* context_;
  shown names_;
};

// A tick on a selected row ticks (or unticks) every selected row and redraws; a tick on any
// other row changes that row alone.
class check_column final : public toolkit::outline_checks {
 public:
  explicit check_column(project_rename_widget& context) noexcept : context_(&context) {}

  bool checked(custom_pointer row) override;
  // A row without a node has no box the user may change.
  bool enabled(custom_pointer row) override;

 protected:
  void check(custom_pointer row, bool checked) override;

 private:
  project_rename_widget* context_;
};

}  // namespace tx::element::detail
