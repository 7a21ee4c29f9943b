// Building the element tree from the host's project.
#pragma once

#include <memory>

#include "tree/tree_nodes.h"
#include "tx/host/handles.h"

namespace tx {

// The meta id of the one kind of plug-in scene collection that is shown.
inline constexpr char plugin_collection_meta_id[] = "plugin_scn_2d_well_planshet_collection3";

// Builds a complete new tree from `project` and only then installs it in `root`, destroying the
// previous one. The root's children are, each only when not empty: the 2D scenes, the 3D scenes,
// the layouts, and the first plug-in collection whose meta id matches exactly. A null project
// gives a root without children.
void build_tree(tx_prj* project, std::unique_ptr<prjrename_tree_group>& root);

}  // namespace tx
