#include "element/tree_view.h"

#include "element/project_rename_widget.h"

namespace tx::element {

prjrename_tree::prjrename_tree(project_rename_widget& context)
    : context_(context),
      toolbar_(context),
      outline_(context),
      names_(context, detail::name_column::shown::old_name),
      new_names_(context, detail::name_column::shown::new_name),
      checks_(context) {
  outline_.add_column(names_);
  outline_.add_column(new_names_);
  outline_.set_checks(&checks_);
  layout_.place(toolbar_.pointer());
  layout_.place(outline_.pointer());
  layout_.set_stretch(true);
  context_.change_callback = [this] { outline_.reload(); };
  refresh_ = context_.names.changed.connect([this] {
    if (context_.root) context_.root->refresh(context_.names);
    context_.redraw();
  });
}

}  // namespace tx::element
