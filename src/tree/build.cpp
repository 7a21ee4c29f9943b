#include "tree/build.h"

#include <string_view>

#include "tree/host_text.h"
#include "tx/host/txk_lr.h"
#include "tx/host/txk_prj.h"
#include "tx/host/txk_scn_2d.h"
#include "tx/host/txk_scn_3d.h"

namespace tx {
namespace {

tx_uuid uuid_of(tx_entities* holder) {
  tx_entity* entity = holder != nullptr ? tx_entities_safe_upcast(holder) : nullptr;
  return entity != nullptr ? tx_entity_get_uuid(entity) : null_uuid;
}

// The child of `group` at position k of n, in the host's order or reversed.
tx_lr_group* child_at(tx_lr_group* group, std::uint32_t n, std::uint32_t k, bool invert) {
  return tx_lr_group_get_child_by_index(group, invert ? n - 1 - k : k);
}

void build_lr_group(prjrename_tree_lr_group& node, tx_lr_group* group,
                    std::vector<prjrename_tree_lr_group*>& groups);

// One child node under `node` for each child of `group`, collecting layer groups into `groups`.
void build_lr_children(prjrename_tree_group& node, tx_lr_group* group,
                       std::vector<prjrename_tree_lr_group*>& groups) {
  const bool invert = tx_options_get_invert_layers();
  const std::uint32_t n = tx_lr_group_get_count_child(group);
  node.children.reserve(n);
  for (std::uint32_t k = 0; k < n; ++k) {
    auto child = std::make_unique<prjrename_tree_lr_group>();
    build_lr_group(*child, child_at(group, n, k, invert), groups);
    node.add(std::move(child));
  }
}

void build_lr_group(prjrename_tree_lr_group& node, tx_lr_group* group,
                    std::vector<prjrename_tree_lr_group*>& groups) {
  node.clear_children();
  node.lr_group = group;
  node.uuid = uuid_of(tx_lr_group_safe_upcast(group));
  node.expanded = tx_lr_group_get_expanded(group);
  if (tx_lr_group_is_group(group)) groups.push_back(&node);
  build_lr_children(node, group, groups);
}

void build_scene(prjrename_tree_scn& node, tx_scn* scene) {
  node.clear_children();
  node.groups.clear();
  node.scn = scene;
  node.uuid = uuid_of(tx_scn_safe_upcast(scene));
  if (tx_lr_group* root = tx_scn_get_lr_group_ptr(scene); root != nullptr) {
    build_lr_children(node, root, node.groups);
  }
}

// Adds a node for a scene collection (2D or 3D, told by the host functions that read it) with
// one child per scene; an absent or empty collection has no row.
template <class Node, class Collection>
void add_collection(prjrename_tree_group& root, Collection* collection,
                    std::uint32_t (*size_of)(Collection*),
                    tx_scn* (*scene_at)(Collection*, std::uint32_t),
                    tx_entities* (*upcast)(Collection*)) {
  const std::uint32_t size = collection != nullptr ? size_of(collection) : 0;
  if (size == 0) return;
  auto node = std::make_unique<Node>();
  node->caption = host_caption(&tx_entities_get_wcaption, upcast(collection));
  node->children.reserve(size);
  for (std::uint32_t i = 0; i < size; ++i) {
    auto scene = std::make_unique<prjrename_tree_scn>();
    build_scene(*scene, scene_at(collection, i));
    node->add(std::move(scene));
  }
  root.add(std::move(node));
}

void add_scenes(prjrename_tree_group& root, tx_scns_2d* collection) {
  add_collection<prjrename_tree_scns2d>(root, collection, &tx_scns_2d_get_size, &tx_scns_2d_get,
                                        &tx_scns_2d_safe_upcast);
}

void add_scenes(prjrename_tree_group& root, tx_scns_3d* collection) {
  add_collection<prjrename_tree_scns3d>(root, collection, &tx_scns_3d_get_size, &tx_scns_3d_get,
                                        &tx_scns_3d_safe_upcast);
}

// Whether the collection's meta id is exactly the shown plug-in collection's, all 39 bytes.
bool is_shown_plugin_collection(tx_scns_2d* collection) {
  const char* meta_id = tx_scns_2d_get_meta_id(collection);
  return meta_id != nullptr && std::string_view(meta_id) == plugin_collection_meta_id;
}

void build_project(prjrename_tree_prj& root, tx_prj* project) {
  root.clear_children();
  if (project == nullptr) return;
  add_scenes(root, tx_prj_get_scns_2d_ptr(project));
  add_scenes(root, tx_prj_get_scns_3d_ptr(project));
  add_scenes(root, tx_prj_get_layouts_data_ptr(project));
  const std::int32_t count = tx_prj_get_plugin_scns_2d_count(project);
  for (std::int32_t i = 0; i < count; ++i) {
    tx_scns_2d* collection = tx_prj_get_plugin_scns_2d_ptr(project, i);
    if (collection == nullptr || !is_shown_plugin_collection(collection)) continue;
    add_scenes(root, collection);
    break;
  }
  root.rebuild_visible();
}

}  // namespace

void build_tree(tx_prj* project, std::unique_ptr<prjrename_tree_group>& root) {
  auto fresh = std::make_unique<prjrename_tree_prj>();
  build_project(*fresh, project);
  std::unique_ptr<prjrename_tree_group> previous = std::move(root);
  root = std::move(fresh);
}

}  // namespace tx
