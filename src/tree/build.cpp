#include "tree/build.h"

#include <cstring>
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
                    std::vector<prjrename_tree_lr_group*>& groups) {
  node.clear_children();
  node.lr_group = group;
  node.uuid = uuid_of(tx_lr_group_safe_upcast(group));
  node.expanded = tx_lr_group_get_expanded(group);
  if (tx_lr_group_is_group(group)) groups.push_back(&node);
  const bool invert = tx_options_get_invert_layers();
  const std::uint32_t n = tx_lr_group_get_count_child(group);
  node.children.reserve(n);
  for (std::uint32_t k = 0; k < n; ++k) {
    auto child = std::make_unique<prjrename_tree_lr_group>();
    build_lr_group(*child, child_at(group, n, k, invert), groups);
    node.add(std::move(child));
  }
}

void build_scene(prjrename_tree_scn& node, tx_scn* scene) {
  node.clear_children();
  node.groups.clear();
  node.scn = scene;
  node.uuid = uuid_of(tx_scn_safe_upcast(scene));
  tx_lr_group* root = tx_scn_get_lr_group_ptr(scene);
  if (root == nullptr) return;
  const bool invert = tx_options_get_invert_layers();
  const std::uint32_t n = tx_lr_group_get_count_child(root);
  node.children.reserve(n);
  for (std::uint32_t k = 0; k < n; ++k) {
    auto child = std::make_unique<prjrename_tree_lr_group>();
    build_lr_group(*child, child_at(root, n, k, invert), node.groups);
    node.add(std::move(child));
  }
}

std::unique_ptr<prjrename_tree_scns2d> build_scns2d(tx_scns_2d* collection) {
  auto node = std::make_unique<prjrename_tree_scns2d>();
  node->caption = host_caption(&tx_entities_get_wcaption, tx_scns_2d_safe_upcast(collection));
  const std::uint32_t size = tx_scns_2d_get_size(collection);
  node->children.reserve(size);
  for (std::uint32_t i = 0; i < size; ++i) {
    auto scene = std::make_unique<prjrename_tree_scn>();
    build_scene(*scene, tx_scns_2d_get(collection, i));
    node->add(std::move(scene));
  }
  return node;
}

bool has_scenes(tx_scns_2d* collection) {
  return collection != nullptr && tx_scns_2d_get_size(collection) > 0;
}

// Whether the collection's meta id is exactly the shown plug-in collection's, all 39 bytes.
bool is_shown_plugin_collection(tx_scns_2d* collection) {
  const char* meta_id = tx_scns_2d_get_meta_id(collection);
  return meta_id != nullptr && std::string_view(meta_id) == plugin_collection_meta_id;
}

void build_project(prjrename_tree_prj& root, tx_prj* project) {
  root.clear_children();
  if (project == nullptr) return;
  if (tx_scns_2d* scenes = tx_prj_get_scns_2d_ptr(project); has_scenes(scenes)) {
    root.add(build_scns2d(scenes));
  }
  if (tx_scns_3d* scenes = tx_prj_get_scns_3d_ptr(project);
      scenes != nullptr && tx_scns_3d_get_size(scenes) > 0) {
    auto node = std::make_unique<prjrename_tree_scns3d>();
    node->caption = host_caption(&tx_entities_get_wcaption, tx_scns_3d_safe_upcast(scenes));
    const std::uint32_t size = tx_scns_3d_get_size(scenes);
    for (std::uint32_t i = 0; i < size; ++i) {
      auto scene = std::make_unique<prjrename_tree_scn>();
      build_scene(*scene, tx_scns_3d_get(scenes, i));
      node->add(std::move(scene));
    }
    root.add(std::move(node));
  }
  if (tx_scns_2d* layouts = tx_prj_get_layouts_data_ptr(project); has_scenes(layouts)) {
    root.add(build_scns2d(layouts));
  }
  const std::int32_t count = tx_prj_get_plugin_scns_2d_count(project);
  for (std::int32_t i = 0; i < count; ++i) {
    tx_scns_2d* collection = tx_prj_get_plugin_scns_2d_ptr(project, i);
    if (collection == nullptr || !is_shown_plugin_collection(collection)) continue;
    if (has_scenes(collection)) root.add(build_scns2d(collection));
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
