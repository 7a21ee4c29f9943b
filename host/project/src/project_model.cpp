#include "tx_host/project/project_model.h"

#include <algorithm>
#include <new>
#include <utility>

#include "tx_host/project/project_file.h"

namespace tx::host {
namespace {

// Unlinks the scene with `uuid` from `scenes`, or answers null.
tx_scn* take_scene(std::vector<tx_scn*>& scenes, tx_uuid uuid) {
  const auto found = std::find_if(scenes.begin(), scenes.end(), [uuid](const tx_scn* scene) {
    return scene->uuid.opaque == uuid.opaque;
  });
  if (found == scenes.end()) return nullptr;
  tx_scn* const scene = *found;
  scenes.erase(found);
  return scene;
}

// Unlinks the group or layer with `uuid` from beneath `group`, or answers null.
tx_lr_group* take_layer(tx_lr_group& group, tx_uuid uuid) {
  const auto children = group.children();
  for (std::size_t i = 0; i < children.size(); ++i) {
    tx_lr_group* const child = children[i];
    if (child->uuid.opaque == uuid.opaque) {
      group.remove_child(i);
      return child;
    }
    if (tx_lr_group* const layer = take_layer(*child, uuid)) return layer;
  }
  return nullptr;
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
  entity_storage storage;
  std::unique_ptr<tx_prj> loaded = read_project_file(path_from_utf8(path), problem, &storage);
  if (!loaded) {
    error_ = describe(path, problem);
    return false;
  }
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
  writes_.clear();
  project_.reset();
  bracket_ = update_bracket();
  writes_.clear();
}

bool project_model::remove(tx_uuid uuid) {
  if (!project_ || storage_.find(uuid) == nullptr) return false;
  tx_scn* scene = nullptr;
  for_each_collection(*project_, [&](std::vector<tx_scn*>& scenes) {
    if (scene == nullptr) scene = take_scene(scenes, uuid);
  });
  if (scene != nullptr) {
    storage_.forget(*scene);
    return true;
  }
  tx_lr_group* layer = nullptr;
  for_each_collection(*project_, [&](std::vector<tx_scn*>& scenes) {
    for (tx_scn* candidate : scenes) {
      if (layer == nullptr && candidate->layers != nullptr) {
        layer = take_layer(*candidate->layers, uuid);
      }
    }
  });
  if (layer == nullptr) return false;
  storage_.forget(*layer);
  return true;
}

void project_model::set_caption(tx_entity& entity, std::u16string_view caption) {
  if (!project_) return;
  // The old caption stays where it is (a plug-in or the record may hold it); the new one is
  // kept beside it. Room first: once the write is recorded, nothing fails.
  const std::u16string_view kept = project_->memory.keep_caption(caption);
  writes_.record(entity.uuid, entity.caption.data(), kept.data(), bracket_.depth());
  entity.caption = kept;
  bracket_.notify();
}

void project_model::set_invert_layers(bool on) noexcept {
  if (project_) project_->invert_layers = on;
}

void project_model::clear_records() noexcept {
  // Every replaced caption was recorded: once no record points at one, their memory is let go.
  const bool replaced = writes_.size() > 0;
  writes_.clear();
  bracket_.clear_counts();
  if (project_ && replaced) compact_captions(*project_);
}

}  // namespace tx::host
