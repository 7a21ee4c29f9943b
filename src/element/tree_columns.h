// The columns of the rename dialog's tree: the check boxes, the old names (the host's current
// captions, read-only) and the new names (editable on every row that stands for an element,
// emphasised where the latest step changed them). Cells are read from the nodes on demand.
#pragma once

#include "toolkit/outline_columns.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element::detail {

class name_column final : public toolkit::string_outline_column {
 public:
  explicit name_column(project_rename_widget& context);

  bool text(custom_pointer row, custom_pointer visitor) override;
  bool editable(custom_pointer) override { return false; }
  bool emphasized(custom_pointer) override { return false; }

 protected:
  void edit(custom_pointer, std::u16string_view) override {}

 private:
  project_rename_widget* context_;
};

class modified_name_column final : public toolkit::string_outline_column {
 public:
  explicit modified_name_column(project_rename_widget& context);

  bool text(custom_pointer row, custom_pointer visitor) override;
  bool editable(custom_pointer row) override;
  bool emphasized(custom_pointer row) override;

 protected:
  // A typed name is one undoable step of the name store; its `changed` brings the view up to
  // date.
  void edit(custom_pointer row, std::u16string_view text) override;

 private:
  project_rename_widget* context_;
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
