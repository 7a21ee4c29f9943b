// The project's elements as the reference host holds them. Each opaque handle type of the SDK
// (tx/host/handles.h) is defined here as a node of the model, so that a handle a plug-in holds
// is the node itself and every safe_upcast is a conversion to a base:
//
//   tx_entity          uuid and caption: anything that has a name
//   ├ tx_entities      a collection of scenes, or a holder of entities (a scene, a layer group)
//   │ ├ tx_scns_2d     2D scenes, layouts or a plug-in's collection (these have a meta id)
//   │ ├ tx_scns_3d     3D scenes
//   │ ├ tx_scn         a scene (2D or 3D) and its root layer group, which may be absent
//   │ └ tx_lr_group    a layer group, or a layer: a layer group that is not a group
//   └ tx_prj           the project: its collections and its options
//
// Parents own their children through unique_ptr, and the project owns everything beneath it.
// The project, the collections and a scene's root layer group have the null uuid; every scene,
// group and layer of a project has its own. Nothing here is virtual: a node is always owned and
// destroyed as its own type. UI thread only.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tx/host/handles.h"

struct tx_entity {
  tx_uuid uuid{};
  std::u16string caption;
};

struct tx_entities : tx_entity {};

struct tx_lr_group : tx_entities {
  bool is_group = true;
  bool expanded = false;
  // In the host's order; always empty for a layer.
  std::vector<std::unique_ptr<tx_lr_group>> children;
};

struct tx_scn : tx_entities {
  // The root layer group, whose children are the scene's top-level layers; null: none.
  std::unique_ptr<tx_lr_group> layers;
};

struct tx_scns_2d : tx_entities {
  // Which plug-in made the collection; empty for the project's own 2D scenes and layouts.
  std::string meta_id;
  std::vector<std::unique_ptr<tx_scn>> scenes;
};

struct tx_scns_3d : tx_entities {
  std::vector<std::unique_ptr<tx_scn>> scenes;
};

struct tx_prj : tx_entity {
  tx_scns_2d scenes_2d;
  tx_scns_3d scenes_3d;
  tx_scns_2d layouts;
  std::vector<std::unique_ptr<tx_scns_2d>> plugin_collections;
  // Layer lists are shown in reverse order.
  bool invert_layers = false;
};

namespace tx::host {

// Calls `visit` for every scene, layer group and layer of the project, parents before their
// children, in the host's order (a scene's root layer group included).
template <typename Visit>
void for_each_in_group(tx_lr_group& group, Visit& visit) {
  visit(static_cast<tx_entity&>(group));
  for (const auto& child : group.children) for_each_in_group(*child, visit);
}

template <typename Visit>
void for_each_in_scene(tx_scn& scene, Visit& visit) {
  visit(static_cast<tx_entity&>(scene));
  if (scene.layers) for_each_in_group(*scene.layers, visit);
}

template <typename Visit>
void for_each_element(tx_prj& project, Visit&& visit) {
  auto visit_scenes = [&visit](auto& scenes) {
    for (const auto& scene : scenes) for_each_in_scene(*scene, visit);
  };
  visit_scenes(project.scenes_2d.scenes);
  visit_scenes(project.scenes_3d.scenes);
  visit_scenes(project.layouts.scenes);
  for (const auto& collection : project.plugin_collections) visit_scenes(collection->scenes);
}

}  // namespace tx::host
