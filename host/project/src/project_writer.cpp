// Writing a project as its document: the same keys the reader takes, in a fixed order, so that
// reading a saved file and saving it again gives the same bytes.
#include <utility>

#include "json_fields.h"
#include "tx_host/project/project_file.h"
#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

using detail::json;

json layer_document(const tx_lr_group& layer) {
  json document = json::object();
  document["uuid"] = uuid_to_text(layer.uuid);
  document["caption"] = to_utf8(layer.caption);
  document["group"] = layer.is_group;
  document["expanded"] = layer.expanded;
  if (layer.is_group) {
    json children = json::array();
    for (const auto& child : layer.children) children.push_back(layer_document(*child));
    document["children"] = std::move(children);
  }
  return document;
}

json scene_document(const tx_scn& scene) {
  json document = json::object();
  document["uuid"] = uuid_to_text(scene.uuid);
  document["caption"] = to_utf8(scene.caption);
  if (scene.layers) {
    json layers = json::array();
    for (const auto& layer : scene.layers->children) layers.push_back(layer_document(*layer));
    document["layers"] = std::move(layers);
  }
  return document;
}

// The collection's caption and scenes, after what `document` already holds.
template <typename Collection>
json collection_document(const Collection& collection, json document = json::object()) {
  document["caption"] = to_utf8(collection.caption);
  json scenes = json::array();
  for (const auto& scene : collection.scenes) scenes.push_back(scene_document(*scene));
  document["scenes"] = std::move(scenes);
  return document;
}

}  // namespace

std::string format_project(const tx_prj& project) {
  json document = json::object();
  document["format"] = project_format_name;
  document["version"] = project_format_version;
  document["caption"] = to_utf8(project.caption);
  document["options"] = json::object();
  document["options"]["invert_layers"] = project.invert_layers;
  document["scenes_2d"] = collection_document(project.scenes_2d);
  document["scenes_3d"] = collection_document(project.scenes_3d);
  document["layouts"] = collection_document(project.layouts);
  json plugin_collections = json::array();
  for (const auto& collection : project.plugin_collections) {
    json meta = json::object();
    meta["meta_id"] = collection->meta_id;
    plugin_collections.push_back(collection_document(*collection, std::move(meta)));
  }
  document["plugin_collections"] = std::move(plugin_collections);
  // Captions come through to_utf8 and are valid UTF-8; anything else would be replaced, not
  // thrown on.
  return document.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace tx::host
