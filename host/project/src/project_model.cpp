#include "tx_host/project/project_model.h"

#include <algorithm>
#include <new>
#include <utility>

#include "tx_host/project/project_file.h"

namespace tx::host {
namespace {

// Takes the node with `uuid` out of `list`, or answers null.
template <typename Node>
std::unique_ptr<Node> take(std::vector<std::unique_ptr<Node>>& list, tx_uuid uuid) {
  const auto found = std::find_if(list.begin(), list.end(), [uuid](const auto& node) {
    return node->uuid.opaque == uuid.opaque;
  });
  if (found == list.end()) return nullptr;
  std::unique_ptr<Node> node = std::move(*found);
  list.erase(found);
  return node;
}

std::unique_ptr<tx_lr_group> take_layer(tx_lr_group& group, tx_uuid uuid) {
  if (auto layer = take(group.children, uuid)) return layer;
  for (const auto& child : group.children) {
    if (auto layer = take_layer(*child, uuid)) return layer;
  }
  return nullptr;
}

// Every scene collection of the project, its own and the plug-ins'.
template <typename Visit>
void for_each_collection(tx_prj& project, Visit visit) {
  visit(project.scenes_2d.scenes);
  visit(project.scenes_3d.scenes);
  visit(project.layouts.scenes);
  for (const auto& collection : project.plugin_collections) visit(collection->scenes);
}

std::string describe(std::string_view path, const project_file_error& error) {
  std::string message(path);
  if (!error.where.empty()) message += ": " + error.where;
  return message + ": " + error.what;
}

}  // namespace

bool project_model::load(std::string_view path) {
  try {
    return load_or_throw(path);
  } catch (const std::bad_alloc&) {
    error_ = std::string(path) + ": out of memory";
    return false;
  }
}

bool project_model::load_or_throw(std::string_view path) {
  project_file_error problem;
  std::unique_ptr<tx_prj> loaded = read_project_file(path_from_utf8(path), problem);
  if (!loaded) {
    error_ = describe(path, problem);
    return false;
  }
  entity_storage storage;
  storage.index(*loaded);
  // Nothing below throws: the new project replaces the old one whole.
  close();
  project_ = std::move(loaded);
  storage_ = std::move(storage);
  error_.clear();
  return true;
}

bool project_model::save(std::string_view path) {
  try {
    return save_or_throw(path);
  } catch (const std::bad_alloc&) {
    error_ = std::string(path) + ": out of memory";
    return false;
  }
}

bool project_model::save_or_throw(std::string_view path) {
  if (!project_) {
    error_ = std::string(path) + ": no project is open";
    return false;
  }
  project_file_error problem;
  if (!write_project_file(*project_, path_from_utf8(path), problem)) {
    error_ = describe(path, problem);
    return false;
  }
  error_.clear();
  return true;
}

void project_model::close() noexcept {
  storage_.clear();
  removed_groups_.clear();
  removed_scenes_.clear();
  project_.reset();
  bracket_ = update_bracket();
  writes_.clear();
}

bool project_model::remove(tx_uuid uuid) {
  if (!project_ || storage_.find(uuid) == nullptr) return false;
  // Room first, so that keeping the removed node cannot fail once it is out of the project.
  removed_scenes_.reserve(removed_scenes_.size() + 1);
  removed_groups_.reserve(removed_groups_.size() + 1);
  std::unique_ptr<tx_scn> scene;
  for_each_collection(*project_, [&](auto& scenes) {
    if (!scene) scene = take(scenes, uuid);
  });
  if (scene) {
    storage_.forget(*scene);
    removed_scenes_.push_back(std::move(scene));
    return true;
  }
  std::unique_ptr<tx_lr_group> layer;
  for_each_collection(*project_, [&](auto& scenes) {
    for (const auto& candidate : scenes) {
      if (!layer && candidate->layers) layer = take_layer(*candidate->layers, uuid);
    }
  });
  if (!layer) return false;
  storage_.forget(*layer);
  removed_groups_.push_back(std::move(layer));
  return true;
}

void project_model::set_caption(tx_entity& entity, std::u16string_view caption) {
  // Room first (never less than the caption has, so `caption` may be part of it): once the
  // write is recorded, taking the new caption cannot fail.
  entity.caption.reserve(caption.size());
  writes_.record(entity.uuid, entity.caption, caption, bracket_.depth());
  entity.caption.assign(caption);
  bracket_.notify();
}

void project_model::set_invert_layers(bool on) noexcept {
  if (project_) project_->invert_layers = on;
}

void project_model::clear_records() noexcept {
  writes_.clear();
  bracket_.clear_counts();
}

}  // namespace tx::host
