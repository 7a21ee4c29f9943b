#include "element/project_rename_widget.h"

#include "tree/build.h"
#include "tree/commit.h"
#include "tx/host/txk_prj.h"

namespace tx {
namespace {

// "Преобразование" / "Transformation".
constexpr std::int32_t operations_caption = 125;

}  // namespace

project_rename_widget::project_rename_widget()
    : operations_panel_(*this), operations_group_(operations_caption), tree_view_(*this) {
  operations_group_.content().place(operations_panel_.pointer());
  layout_.place(operations_group_.pointer());
  layout_.place(tree_view_.pointer());
  layout_.set_stretch(true);
}

void project_rename_widget::open() {
  project = tx_prj_get_instance();
  build_tree(project, root);
  root->refresh(names);
  redraw();
}

bool project_rename_widget::accept() { return commit_names(names, project); }

void project_rename_widget::redraw() const {
  if (change_callback) change_callback();
}

}  // namespace tx
