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
//   └ tx_prj           the project: its collections, its options, and the memory of its nodes
//
// The project owns everything beneath it: its scenes, groups and layers, their child lists and
// every caption live in the project's chunked buffers (element_memory), and the links between
// nodes are plain pointers into them. Nothing moves or is freed before the project is: a removed
// element is only unlinked, so a handle to it stays readable. The project, the collections and a
// scene's root layer group have the null uuid; every scene, group and layer of a project has its
// own. Nothing here is virtual. UI thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tx/host/handles.h"
#include "tx_host/project/chunked_buffer.h"

struct tx_entity {
  tx_uuid uuid{};
  // NUL-terminated, in the project's caption memory (or a literal).
  std::u16string_view caption = u"";
};

struct tx_entities : tx_entity {};

struct tx_lr_group : tx_entities {
  // In the host's order; always empty for a layer.
  std::span<tx_lr_group* const> children() const noexcept { return {children_, child_count_}; }
  void set_children(tx_lr_group** first, std::uint32_t count) noexcept {
    children_ = first;
    child_count_ = count;
  }
  // Unlinks child `index`: the ones after it move up.
  void remove_child(std::size_t index) noexcept;

  bool is_group = true;
  bool expanded = false;

 private:
  tx_lr_group** children_ = nullptr;
  std::uint32_t child_count_ = 0;
};

struct tx_scn : tx_entities {
  // The root layer group, whose children are the scene's top-level layers; null: none.
  tx_lr_group* layers = nullptr;
};

struct tx_scns_2d : tx_entities {
  // Which plug-in made the collection; empty for the project's own 2D scenes and layouts.
  std::string meta_id;
  std::vector<tx_scn*> scenes;
};

struct tx_scns_3d : tx_entities {
  std::vector<tx_scn*> scenes;
};

namespace tx::host {

// Where a project's scenes, groups, layers, child lists and captions live.
struct element_memory {
  chunked_buffer<tx_scn> scenes{1024};
  chunked_buffer<tx_lr_group> groups{4096};
  chunked_buffer<tx_lr_group*> child_lists{16384};
  chunked_buffer<char16_t> captions{65536};

  // A copy of `text`, NUL-terminated, that lives as long as the project.
  std::u16string_view keep_caption(std::u16string_view text);
};

}  // namespace tx::host

struct tx_prj : tx_entity {
  tx_scns_2d scenes_2d;
  tx_scns_3d scenes_3d;
  tx_scns_2d layouts;
  std::vector<std::unique_ptr<tx_scns_2d>> plugin_collections;
  // Layer lists are shown in reverse order.
  bool invert_layers = false;
  tx::host::element_memory memory;
};

namespace tx::host {

// Calls `visit` for every scene, layer group and layer of the project, parents before their
// children, in the host's order (a scene's root layer group included).
template <typename Visit>
void for_each_in_group(tx_lr_group& group, Visit& visit) {
  visit(static_cast<tx_entity&>(group));
  for (tx_lr_group* child : group.children()) for_each_in_group(*child, visit);
}

template <typename Visit>
void for_each_in_scene(tx_scn& scene, Visit& visit) {
  visit(static_cast<tx_entity&>(scene));
  if (scene.layers != nullptr) for_each_in_group(*scene.layers, visit);
}

// Every scene collection of the project, its own and the plug-ins', in the host's order.
template <typename Visit>
void for_each_collection(tx_prj& project, Visit&& visit) {
  visit(project.scenes_2d.scenes);
  visit(project.scenes_3d.scenes);
  visit(project.layouts.scenes);
  for (const auto& collection : project.plugin_collections) visit(collection->scenes);
}

// Copies the caption of every entity of the project (removed elements' included) into fresh
// caption memory and frees the old, which also held every caption a rename replaced. Whatever
// pointed into the old memory (the record of caption writes) must have let go of it. Nothing
// changes when memory runs out.
void compact_captions(tx_prj& project) noexcept;

template <typename Visit>
void for_each_element(tx_prj& project, Visit&& visit) {
  for_each_collection(project, [&visit](std::vector<tx_scn*>& scenes) {
    for (tx_scn* scene : scenes) for_each_in_scene(*scene, visit);
  });
}

}  // namespace tx::host
