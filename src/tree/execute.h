// The execute step: the dialog's operations applied to the ticked elements as one step.
#pragma once

#include "rename/operation_list.h"
#include "tree/names.h"
#include "tree/tree_item.h"

namespace tx {

// Gathers the operations that are not idle (none: warning 130), collects the ticked renameable
// elements under `root` (none: warning 131); after either warning nothing has changed. Otherwise
// lets each gathered operation remember its texts, applies them in order to every collected
// element as one step of `names`, and resets them. Returns whether a step was pushed.
bool execute_operations(const prjrename_operation_list& operations, const prjrename_tree_item& root,
                        prjrename_names& names);

}  // namespace tx
