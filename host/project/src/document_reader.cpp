#include "document_reader.h"

#include <cstring>
#include <utility>

#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"

namespace tx::host::detail {
namespace {

// Groups nest at most this deep below a scene.
constexpr std::size_t max_group_depth = 100;
// Past a fault the rest is only followed, to this nesting at most (the parser's own stack grows
// with it).
constexpr std::size_t max_followed_depth = 1000;

constexpr field_spec document_fields[] = {
    {"format", slot::format, json_type::string, true},
    {"version", slot::version, json_type::integer, true},
    {"caption", slot::caption, json_type::string, false},
    {"options", slot::options, json_type::object, false},
    {"scenes_2d", slot::scenes_2d, json_type::object, true},
    {"scenes_3d", slot::scenes_3d, json_type::object, true},
    {"layouts", slot::layouts, json_type::object, true},
    {"plugin_collections", slot::plugin_collections, json_type::array, false},
};
constexpr field_spec options_fields[] = {
    {"invert_layers", slot::invert_layers, json_type::boolean, false},
};
constexpr field_spec collection_fields[] = {
    {"caption", slot::caption, json_type::string, true},
    {"scenes", slot::scenes, json_type::array, true},
};
constexpr field_spec plugin_collection_fields[] = {
    {"meta_id", slot::meta_id, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"scenes", slot::scenes, json_type::array, true},
};
constexpr field_spec scene_fields[] = {
    {"uuid", slot::uuid, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"layers", slot::layers, json_type::array, false},
};
constexpr field_spec layer_fields[] = {
    {"uuid", slot::uuid, json_type::string, true},
    {"caption", slot::caption, json_type::string, true},
    {"group", slot::group, json_type::boolean, true},
    {"expanded", slot::expanded, json_type::boolean, true},
    {"children", slot::children, json_type::array, false},
};

std::string type_name(json_type type) {
  switch (type) {
    case json_type::object:
      return "an object";
    case json_type::array:
      return "an array";
    case json_type::string:
      return "a string";
    case json_type::boolean:
      return "a boolean";
    case json_type::integer:
      return "an integer";
    case json_type::number:
      return "a number";
    case json_type::null:
      break;
  }
  return "null";
}

// A text of the document as a message can show it: bytes that are not UTF-8 become U+FFFD.
std::string printable(std::string_view text) { return to_utf8(to_utf16(text)); }

// A key as a JSON pointer spells it: "~" as "~0", "/" as "~1".
std::string pointer_token(std::string_view key) {
  std::string token;
  for (const char c : printable(key)) {
    if (c == '~') {
      token += "~0";
    } else if (c == '/') {
      token += "~1";
    } else {
      token += c;
    }
  }
  return token;
}

// An escaped surrogate that is not half of a pair ("\udc00") comes out of the parser as the
// three bytes ED B0 80, which well-formed UTF-8 never holds: its code unit, or 0 when none.
char16_t unpaired_surrogate(std::string_view text) noexcept {
  const char* at = text.data();
  const char* const end = text.data() + text.size();
  while (end - at >= 3) {
    at = static_cast<const char*>(std::memchr(at, 0xED, static_cast<std::size_t>(end - at - 2)));
    if (at == nullptr) break;
    const auto second = static_cast<unsigned char>(at[1]);
    if (second >= 0xA0) {
      return static_cast<char16_t>(0xD000 | ((second & 0x3F) << 6) | (at[2] & 0x3F));
    }
    ++at;
  }
  return 0;
}

std::string hex4(char16_t unit) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += digits[(unit >> shift) & 0xF];
  return text;
}

}  // namespace

bool document_reader::frame::has(slot s) const noexcept {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].what == s) return (seen & (1u << i)) != 0;
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
  // The format and version are told by watch_top; anything else is told here.
  if (what == slot::format || what == slot::version) {
    faulted_ = true;
  } else {
    refuse(pointer_to_value(), "expected " + type_name(expected) + ", found " + type_name(type));
  }
  return std::nullopt;
}

void document_reader::watch_top(json_type type, std::string_view text, std::string_view digits) {
  if (top_key_ == slot::format) {
    if (type != json_type::string) {
      keep_first(format_fault_, "/format", "expected a string, found " + type_name(type));
    } else if (text != project_format_name) {
      keep_first(format_fault_, "/format",
                 "unknown format \"" + printable(text) + "\" (expected \"" +
                     std::string(project_format_name) + "\")");
    }
  } else if (top_key_ == slot::version) {
    if (type != json_type::integer) {
      keep_first(version_fault_, "/version", "expected an integer, found " + type_name(type));
    } else if (digits != std::to_string(project_format_version)) {
      keep_first(version_fault_, "/version",
                 "unsupported version " + std::string(digits) + " (this host reads version " +
                     std::to_string(project_format_version) + ")");
    }
  }
}

bool document_reader::StartObject() {
  if (depth_ == 0) top_is_object_ = true;
  if (depth_ == 1 && top_is_object_) watch_top(json_type::object);
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
  if (depth_ == 0 && top_is_object_) {
    if (!format_seen_) keep_first(format_fault_, "/format", "missing");
    if (!version_seen_) keep_first(version_fault_, "/version", "missing");
  }
  return true;
}

void document_reader::close_object() {
  const frame& f = frames_.back();
  for (std::size_t i = 0; i < f.fields.size(); ++i) {
    const field_spec& spec = f.fields[i];
    const bool watched = spec.what == slot::format || spec.what == slot::version;
    if (spec.required && !watched && (f.seen & (1u << i)) == 0) {
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
  if (depth_ == 1 && top_is_object_) watch_top(json_type::array);
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
  const std::string_view key(text, length);
  if (depth_ == 1 && top_is_object_) {
    top_key_ = key == "format" ? slot::format : key == "version" ? slot::version : slot::document;
    format_seen_ = format_seen_ || top_key_ == slot::format;
    version_seen_ = version_seen_ || top_key_ == slot::version;
  }
  if (faulted_) return true;
  frame& f = frames_.back();
  for (std::size_t i = 0; i < f.fields.size(); ++i) {
    if (f.fields[i].key != key) continue;
    if ((f.seen & (1u << i)) != 0) {
      refuse(pointer_to_key(key), "duplicate key");
    } else {
      f.seen |= 1u << i;
      f.key = i;
    }
    return true;
  }
  refuse(pointer_to_key(key), "unknown key");
  return true;
}

bool document_reader::String(const char* text, unsigned length, bool) {
  const std::string_view value(text, length);
  if (depth_ == 1 && top_is_object_) watch_top(json_type::string, value);
  if (const std::optional<slot> what = begin_value(json_type::string)) read_text(*what, value);
  return !located_;
}

void document_reader::read_text(slot what, std::string_view text) {
  if (what == slot::uuid) {
    read_uuid(text);
    return;
  }
  if (what != slot::caption && what != slot::meta_id) return;  // the format: watched
  if (const char16_t unit = unpaired_surrogate(text)) {
    refuse(pointer_to_value(), hex4(unit) + " is half of a surrogate pair, not a character");
    return;
  }
  if (what == slot::caption) {
    frames_.back().entity->caption = keep_caption(text);
  } else {
    frames_.back().collection->meta_id.assign(text);
  }
}

std::u16string_view document_reader::keep_caption(std::string_view text) {
  chunked_buffer<char16_t>& captions = project_->memory.captions;
  char16_t* const start = captions.room(text.size() + 1);
  const std::size_t length = to_utf16(text, start);
  start[length] = u'\0';
  captions.give_back(text.size() - length);
  return {start, length};
}

void document_reader::read_uuid(std::string_view text) {
  const std::optional<std::uint64_t> value = uuid_from_text(text);
  if (!value) {
    refuse(pointer_to_value(),
           "not a uuid: \"" + printable(text) + "\" (expected 1 to 16 hexadecimal digits)");
    return;
  }
  if (*value == 0) {
    refuse(pointer_to_value(), "the null uuid names no element");
    return;
  }
  tx_entity& entity = *frames_.back().entity;
  entity.uuid = tx_uuid{*value};
  if (const std::optional<std::size_t> first = storage_.add(entity)) {
    duplicate_of_ = *first;
    refuse(pointer_to_value(), "duplicate uuid " + uuid_to_text(entity.uuid) + " (first at ");
    return;
  }
  if (locate_ && added_ == *locate_) located_ = pointer_to_value();
  ++added_;
}

bool document_reader::Bool(bool value) {
  if (depth_ == 1 && top_is_object_) watch_top(json_type::boolean);
  const std::optional<slot> what = begin_value(json_type::boolean);
  if (what == slot::invert_layers) {
    project_->invert_layers = value;
  } else if (what == slot::group) {
    frames_.back().group->is_group = value;
  } else if (what == slot::expanded) {
    frames_.back().group->expanded = value;
  }
  return true;
}

bool document_reader::Null() {
  if (depth_ == 1 && top_is_object_) watch_top(json_type::null);
  begin_value(json_type::null);  // no key takes null
  return true;
}

bool document_reader::Double(double) {
  if (depth_ == 1 && top_is_object_) watch_top(json_type::number);
  begin_value(json_type::number);  // no key takes a fraction
  return true;
}

bool document_reader::integer(const std::string& digits) {
  if (depth_ == 1 && top_is_object_) watch_top(json_type::integer, {}, digits);
  begin_value(json_type::integer);  // only the version, which watch_top checked
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
  keep_first(fault_, std::move(where), std::move(what));
  faulted_ = true;
}

void document_reader::keep_first(std::optional<project_file_error>& kept, std::string where,
                                 std::string what) {
  if (!kept) kept = project_file_error{std::move(where), std::move(what)};
}

}  // namespace tx::host::detail
