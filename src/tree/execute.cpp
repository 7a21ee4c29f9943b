#include "tree/execute.h"

#include "resources/warning.h"

namespace tx {

bool execute_operations(const prjrename_operation_list& operations, const prjrename_tree_item& root,
                        prjrename_names& names) {
  const std::vector<prjrename_operation*> active = operations.active();
  if (active.empty()) {
    show_warning(warning_no_conditions);
    return false;
  }
  uuid_set elements;
  root.collect_checked(elements);
  if (elements.empty()) {
    show_warning(warning_nothing_selected);
    return false;
  }
  for (prjrename_operation* operation : active) operation->remember();
  const bool pushed = names.apply_chain(active, elements);
  for (prjrename_operation* operation : active) operation->reset();
  return pushed;
}

}  // namespace tx
