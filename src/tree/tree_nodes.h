// The node classes that stand for the project's elements: layer groups and layers, scenes,
// scene collections and the project itself.
#pragma once

#include <string>
#include <vector>

#include "tree/tree_item.h"
#include "tx/host/handles.h"

namespace tx {

// One layer or layer group of a scene (a layer is a layer group that is not a group).
class prjrename_tree_lr_group final : public prjrename_tree_group {
 public:
  void get_caption(const prjrename_sink& sink) const override;

  tx_lr_group* lr_group = nullptr;
};

// One 2D or 3D scene.
class prjrename_tree_scn final : public prjrename_tree_group {
 public:
  void collect_checked(uuid_set& set) const override;
  void get_caption(const prjrename_sink& sink) const override;

  tx_scn* scn = nullptr;
  // Collecting walks the children; when cleared, it walks `groups` and their direct children.
  bool walk_children = true;
  // Every group node beneath the scene, parent before its descendants. Not owned.
  std::vector<prjrename_tree_lr_group*> groups;
};

// A collection of 2D scenes: the project's 2D scenes, its layouts, or a plug-in's collection.
class prjrename_tree_scns2d final : public prjrename_tree_group {
 public:
  void get_caption(const prjrename_sink& sink) const override;

  std::u16string caption;  // captured when the collection is built
};

// The project's 3D scene collection.
class prjrename_tree_scns3d final : public prjrename_tree_group {
 public:
  void get_caption(const prjrename_sink& sink) const override;

  std::u16string caption;  // captured when the collection is built
};

// The root: the project. Never shown as a row; its children are the top-level rows.
class prjrename_tree_prj final : public prjrename_tree_group {};

}  // namespace tx
