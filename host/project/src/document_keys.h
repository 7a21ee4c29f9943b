// The keys each kind of object in a project document may hold: its name, what its value stands
// for, the value's type and whether the object must have it (docs/project-format.md). A reader
// records which of an object's keys it has read in a key_set, one bit per row of the object's
// table, so every table must fit in one.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "json_type.h"

namespace tx::host::detail {

// What a value stands for in the document.
enum class slot : std::uint8_t {
  document,
  format,
  version,
  caption,
  options,
  invert_layers,
  scenes_2d,
  scenes_3d,
  layouts,
  plugin_collections,
  plugin_collection,
  meta_id,
  scenes,
  scene,
  uuid,
  layers,
  layer,
  group,
  expanded,
  children,
};

struct field_spec {
  std::string_view key;
  slot what;
  json_type type;
  bool required;
};

// The keys of one object read so far: bit i for row i of its table.
using key_set = std::bitset<8>;

// The project's own object. Its format and version are checked by the format watch.
inline constexpr field_spec document_fields[] = {
    {"format", slot::format, json_type::string, true},
    {"version", slot::version, json_type::integer, true},
    {"caption", slot::caption, json_type::string, false},
    {"options", slot::options, json_type::object, false},
    {"scenes_2d", slot::scenes_2d, json_type::object, true},
    {"scenes_3d", slot::scenes_3d, json_type::object, true},
    {"layouts", slot::layouts, json_type::object, true},
    {"plugin_collections", slot::plugin_collections, json_type::array, false},
};
static_assert(std::size(document_fields) <= key_set().size());

inline constexpr field_spec options_fields[] = {
    {"invert_layers", slot::invert_layers, json_type::boolean, false},
};
static_assert(std::size(options_fields) <= key_set().size());

// scenes_2d, scenes_3d and layouts.
inline constexpr field_spec collection_fields[] = {
    {"caption", slot::caption, json_type::string, true},
    {"scenes", slot::scenes, json_type::array, true},
};
static_assert(std::size(collection_fields) <= key_set().size());

inline constexpr field_spec plugin_collection_fields[] = {
    {"meta_id", slot::meta_id, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"scenes", slot::scenes, json_type::array, true},
};
static_assert(std::size(plugin_collection_fields) <= key_set().size());

inline constexpr field_spec scene_fields[] = {
    {"uuid", slot::uuid, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"layers", slot::layers, json_type::array, false},
};
static_assert(std::size(scene_fields) <= key_set().size());

// A layer group or a layer.
inline constexpr field_spec layer_fields[] = {
    {"uuid", slot::uuid, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"group", slot::group, json_type::boolean, true},
    {"expanded", slot::expanded, json_type::boolean, true},
    {"children", slot::children, json_type::array, false},
};
static_assert(std::size(layer_fields) <= key_set().size());

}  // namespace tx::host::detail
