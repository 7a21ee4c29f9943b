// Writing the pending names into the project.
#pragma once

#include "tree/names.h"
#include "tx/host/handles.h"

namespace tx {

// Validates every pending name, then writes them all. No entry: warning 129 and false. An
// empty new name anywhere: warning 132 and false. Both are checked before anything is written.
// Otherwise every entry is written in the store's order inside one recursive update bracket of
// the project (when the host offers it), with progress k / n reported before the k-th write;
// an element the host no longer has is skipped. The store itself is left as it is.
bool commit_names(const prjrename_names& names, tx_prj* project);

}  // namespace tx
