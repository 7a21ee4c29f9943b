// The document's structure: its objects and arrays, their keys, and where a value stands.
#include "document_reader.h"

#include <utility>

#include "document_text.h"

namespace tx::host::detail {
namespace {

// Groups nest at most this deep below a scene.
constexpr std::size_t max_group_depth = 100;
// Past a fault the rest is only followed, to this nesting at most (the parser's own stack grows
// with it).
constexpr std::size_t max_followed_depth = 1000;

}  // namespace

bool document_reader::frame::has(slot s) const noexcept {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].what == s) return seen.test(i);
  }
  return false;
}

document_reader::document_reader(std::optional<std::size_t> locate)
    : project_(std::make_unique<tx_prj>()), locate_(locate) {
  frames_.reserve(2 * max_group_depth + 8);
}

std::optional<slot> document_reader::begin_value(json_type type) {
  if (faulted_) return std::nullopt;
  slot what = slot::document;
  json_type expected = json_type::object;
  if (!frames_.empty()) {
    frame& f = frames_.back();
    if (f.fields.empty()) {
      ++f.count;
      what = f.what == slot::plugin_collections ? slot::plugin_collection
             : f.what == slot::scenes           ? slot::scene
                                                : slot::layer;
    } else {
      what = f.fields[f.key].what;
      expected = f.fields[f.key].type;
    }
  }
  if (type == expected) return what;
  // The format and version are told by the format watch; anything else is told here.
  if (what == slot::format || what == slot::version) {
    faulted_ = true;
  } else {
    refuse(pointer_to_value(), type_mismatch(expected, type));
  }
  return std::nullopt;
}

bool document_reader::StartObject() {
  const std::optional<slot> what = begin_value(json_type::object);
  ++depth_;
  if (!what) return depth_ <= max_followed_depth;
  open_object(*what);
  return true;
}

void document_reader::open_object(slot what) {
  tx_prj& project = *project_;
  switch (what) {
    case slot::document:
      frames_.push_back({document_fields, what});
      frames_.back().entity = &project;
      return;
    case slot::options:
      frames_.push_back({options_fields, what});
      return;
    case slot::scenes_2d:
    case slot::layouts: {
      tx_scns_2d& collection = what == slot::scenes_2d ? project.scenes_2d : project.layouts;
      frames_.push_back({collection_fields, what});
      frames_.back().entity = &collection;
      frames_.back().scenes = &collection.scenes;
      return;
    }
    case slot::scenes_3d:
      frames_.push_back({collection_fields, what});
      frames_.back().entity = &project.scenes_3d;
      frames_.back().scenes = &project.scenes_3d.scenes;
      return;
    case slot::plugin_collection: {
      project.plugin_collections.push_back(std::make_unique<tx_scns_2d>());
      tx_scns_2d& collection = *project.plugin_collections.back();
      frames_.push_back({plugin_collection_fields, what});
      frames_.back().entity = &collection;
      frames_.back().scenes = &collection.scenes;
      frames_.back().collection = &collection;
      return;
    }
    case slot::scene: {
      tx_scn* const scene = project.memory.scenes.room(1);
      frames_.back().scenes->push_back(scene);
      frames_.push_back({scene_fields, what});
      frames_.back().entity = scene;
      frames_.back().scene = scene;
      return;
    }
    case slot::layer: {
      tx_lr_group* const layer = project.memory.groups.room(1);
      const std::size_t level = frames_.back().depth;
      pending_[level].push_back(layer);
      frames_.push_back({layer_fields, what});
      frames_.back().entity = layer;
      frames_.back().group = layer;
      frames_.back().depth = level;
      return;
    }
    default:
      return;  // no other slot takes an object
  }
}

bool document_reader::EndObject(unsigned) {
  if (!faulted_) close_object();
  --depth_;
  return true;
}

void document_reader::close_object() {
  const frame& f = frames_.back();
  for (std::size_t i = 0; i < f.fields.size(); ++i) {
    const field_spec& spec = f.fields[i];
    const bool watched = spec.what == slot::format || spec.what == slot::version;
    if (spec.required && !watched && !f.seen.test(i)) {
      refuse(pointer(frames_.size() - 1) + "/" + std::string(spec.key), "missing");
      return;
    }
  }
  // The children came before "group" said it is a layer.
  if (f.what == slot::layer && f.has(slot::children) && !f.group->is_group) {
    refuse(pointer(frames_.size() - 1) + "/children",
           "a layer holds no children (\"group\" is false)");
    return;
  }
  frames_.pop_back();
}

bool document_reader::StartArray() {
  const std::optional<slot> what = begin_value(json_type::array);
  ++depth_;
  if (!what) return depth_ <= max_followed_depth;
  open_array(*what);
  return true;
}

void document_reader::open_array(slot what) {
  switch (what) {
    case slot::plugin_collections:
      frames_.push_back({{}, what});
      return;
    case slot::scenes: {
      std::vector<tx_scn*>* const scenes = frames_.back().scenes;
      frames_.push_back({{}, what});
      frames_.back().scenes = scenes;
      return;
    }
    case slot::layers: {
      // The root layer group is not written out: its children are the scene's layers.
      tx_lr_group* const root = project_->memory.groups.room(1);
      root->expanded = true;
      frames_.back().scene->layers = root;
      start_layers(*root, 1);
      return;
    }
    case slot::children: {
      const frame& layer = frames_.back();
      if (layer.has(slot::group) && !layer.group->is_group) {
        refuse(pointer_to_value(), "a layer holds no children (\"group\" is false)");
      } else if (layer.depth == max_group_depth) {
        refuse(pointer_to_value(),
               "groups nested deeper than " + std::to_string(max_group_depth) + " levels");
      } else {
        start_layers(*layer.group, layer.depth + 1);
      }
      return;
    }
    default:
      return;  // no other slot takes an array
  }
}

void document_reader::start_layers(tx_lr_group& group, std::size_t level) {
  if (pending_.size() <= level) pending_.resize(level + 1);
  pending_[level].clear();
  frames_.push_back({{}, slot::layers});
  frames_.back().group = &group;
  frames_.back().depth = level;
}

bool document_reader::EndArray(unsigned) {
  if (!faulted_) {
    if (frames_.back().what == slot::layers) close_layers(frames_.back());
    frames_.pop_back();
  }
  --depth_;
  return true;
}

void document_reader::close_layers(const frame& layers) {
  std::vector<tx_lr_group*>& list = pending_[layers.depth];
  tx_lr_group** const children = project_->memory.child_lists.keep(list.begin(), list.end());
  layers.group->set_children(children, static_cast<std::uint32_t>(list.size()));
  list.clear();
}

bool document_reader::Key(const char* text, unsigned length, bool) {
  if (faulted_) return true;
  const std::string_view key(text, length);
  frame& f = frames_.back();
  for (std::size_t i = 0; i < f.fields.size(); ++i) {
    if (f.fields[i].key != key) continue;
    if (f.seen.test(i)) {
      refuse(pointer_to_key(key), "duplicate key");
    } else {
      f.seen.set(i);
      f.key = i;
    }
    return true;
  }
  refuse(pointer_to_key(key), "unknown key");
  return true;
}

std::string document_reader::pointer(std::size_t frames) const {
  std::string at;
  for (std::size_t i = 0; i < frames; ++i) {
    const frame& f = frames_[i];
    at += '/';
    at += f.fields.empty() ? std::to_string(f.count - 1) : std::string(f.fields[f.key].key);
  }
  return at;
}

std::string document_reader::pointer_to_key(std::string_view key) const {
  return pointer(frames_.size() - 1) + "/" + pointer_token(key);
}

void document_reader::refuse(std::string where, std::string what) {
  if (!fault_) fault_ = project_file_error{std::move(where), std::move(what)};
  faulted_ = true;
}

}  // namespace tx::host::detail
