// Reading a project document into a new project: every field checked for presence and type,
// every uuid for form and uniqueness, every key known. The first fault found is the refusal.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "json_fields.h"
#include "tx_host/project/project_file.h"
#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

using detail::json;
using detail::json_pointer;
using detail::object_fields;
using detail::refuse;

// Groups nest at most this deep below a scene; deeper is refused rather than read recursively.
constexpr std::size_t max_group_depth = 100;

class project_reader {
 public:
  std::unique_ptr<tx_prj> read(const json& document) {
    const object_fields top(document, json_pointer());
    check_format(top);
    top.allow_only({"format", "version", "caption", "options", "scenes_2d", "scenes_3d", "layouts",
                    "plugin_collections"});
    auto project = std::make_unique<tx_prj>();
    if (top.has("caption")) project->caption = to_utf16(top.text("caption"));
    if (top.has("options")) {
      const object_fields options(top.value("options"), top.at("options"));
      options.allow_only({"invert_layers"});
      if (options.has("invert_layers")) project->invert_layers = options.flag("invert_layers");
    }
    read_collection(top, "scenes_2d", project->scenes_2d);
    read_collection(top, "scenes_3d", project->scenes_3d);
    read_collection(top, "layouts", project->layouts);
    if (top.has("plugin_collections")) {
      const json& list = top.array("plugin_collections");
      for (std::size_t i = 0; i < list.size(); ++i) {
        const object_fields fields(list[i], top.at("plugin_collections") / i);
        fields.allow_only({"meta_id", "caption", "scenes"});
        auto collection = std::make_unique<tx_scns_2d>();
        collection->meta_id = fields.text("meta_id");
        read_scenes(fields, *collection);
        project->plugin_collections.push_back(std::move(collection));
      }
    }
    return project;
  }

 private:
  // The format and version come first: a newer file is "unsupported", not full of unknown keys.
  static void check_format(const object_fields& top) {
    const std::string format = top.text("format");
    if (format != project_format_name) {
      refuse(top.at("format"), "unknown format \"" + format + "\" (expected \"" +
                                   std::string(project_format_name) + "\")");
    }
    const json& version = top.value("version");
    if (!version.is_number_integer()) {
      refuse(top.at("version"),
             "expected an integer, found " + std::string(detail::type_name(version.type())));
    }
    if (version != project_format_version) {
      refuse(top.at("version"), "unsupported version " + version.dump() +
                                    " (this host reads version " +
                                    std::to_string(project_format_version) + ")");
    }
  }

  template <typename Collection>
  void read_collection(const object_fields& top, std::string_view key, Collection& collection) {
    const object_fields fields(top.value(key), top.at(key));
    fields.allow_only({"caption", "scenes"});
    read_scenes(fields, collection);
  }

  template <typename Collection>
  void read_scenes(const object_fields& fields, Collection& collection) {
    collection.caption = to_utf16(fields.text("caption"));
    const json& scenes = fields.array("scenes");
    for (std::size_t i = 0; i < scenes.size(); ++i) {
      collection.scenes.push_back(read_scene(scenes[i], fields.at("scenes") / i));
    }
  }

  std::unique_ptr<tx_scn> read_scene(const json& value, const json_pointer& at) {
    const object_fields fields(value, at);
    fields.allow_only({"uuid", "caption", "layers"});
    auto scene = std::make_unique<tx_scn>();
    scene->uuid = read_uuid(fields);
    scene->caption = to_utf16(fields.text("caption"));
    if (fields.has("layers")) {
      // The root layer group is not written out: its children are the scene's layers.
      scene->layers = std::make_unique<tx_lr_group>();
      scene->layers->expanded = true;
      read_children(fields, "layers", *scene->layers, 1);
    }
    return scene;
  }

  void read_children(const object_fields& fields, std::string_view key, tx_lr_group& group,
                     std::size_t depth) {
    const json& children = fields.array(key);
    for (std::size_t i = 0; i < children.size(); ++i) {
      group.children.push_back(read_layer(children[i], fields.at(key) / i, depth));
    }
  }

  std::unique_ptr<tx_lr_group> read_layer(const json& value, const json_pointer& at,
                                          std::size_t depth) {
    const object_fields fields(value, at);
    fields.allow_only({"uuid", "caption", "group", "expanded", "children"});
    auto layer = std::make_unique<tx_lr_group>();
    layer->uuid = read_uuid(fields);
    layer->caption = to_utf16(fields.text("caption"));
    layer->is_group = fields.flag("group");
    layer->expanded = fields.flag("expanded");
    if (!layer->is_group) {
      if (fields.has("children")) {
        refuse(fields.at("children"), "a layer holds no children (\"group\" is false)");
      }
    } else if (fields.has("children")) {
      if (depth == max_group_depth) {
        refuse(fields.at("children"),
               "groups nested deeper than " + std::to_string(max_group_depth) + " levels");
      }
      read_children(fields, "children", *layer, depth + 1);
    }
    return layer;
  }

  tx_uuid read_uuid(const object_fields& fields) {
    const std::string text = fields.text("uuid");
    const json_pointer at = fields.at("uuid");
    const std::optional<std::uint64_t> value = uuid_from_text(text);
    if (!value) {
      refuse(at, "not a uuid: \"" + text + "\" (expected 1 to 16 hexadecimal digits)");
    }
    if (*value == 0) refuse(at, "the null uuid names no element");
    const auto [first, added] = first_seen_.try_emplace(*value, at.to_string());
    if (!added) {
      refuse(at, "duplicate uuid " + uuid_to_text(tx_uuid{*value}) + " (first at " + first->second +
                     ")");
    }
    return tx_uuid{*value};
  }

  // Each uuid read so far, with where it was first seen.
  std::unordered_map<std::uint64_t, std::string> first_seen_;
};

// "line 4, column 9" and the parser's own description, from nlohmann's message
// "[json.exception.parse_error.101] parse error at line 4, column 9: syntax error ...".
project_file_error describe(const json::parse_error& error) {
  const std::string_view message = error.what();
  constexpr std::string_view at = "parse error at ";
  const std::size_t start = message.find(at);
  if (start != std::string_view::npos) {
    const std::string_view rest = message.substr(start + at.size());
    const std::size_t colon = rest.find(": ");
    if (rest.starts_with("line ") && colon != std::string_view::npos) {
      return {std::string(rest.substr(0, colon)), std::string(rest.substr(colon + 2))};
    }
  }
  return {"byte " + std::to_string(error.byte), std::string(message)};
}

// A number too large for any number type ("[json.exception.out_of_range.406] number overflow
// parsing '1E999'"): the message quotes the number but gives no place, so the place is where that
// number first stands in the text. Any other failure of the parser is told as it is.
project_file_error describe(const json::exception& error, std::string_view text) {
  std::string_view message = error.what();
  if (const std::size_t end = message.find("] "); end != std::string_view::npos) {
    message.remove_prefix(end + 2);
  }
  std::string where;
  const std::size_t open = message.find('\'');
  const std::size_t close = message.rfind('\'');
  if (open != std::string_view::npos && close > open + 1) {
    const std::size_t at = text.find(message.substr(open + 1, close - open - 1));
    if (at != std::string_view::npos) {
      const std::string_view before = text.substr(0, at);
      const std::size_t line_start = before.rfind('\n');
      const std::size_t column = line_start == std::string_view::npos ? at + 1 : at - line_start;
      where = "line " + std::to_string(std::count(before.begin(), before.end(), '\n') + 1) +
              ", column " + std::to_string(column);
    }
  }
  return {std::move(where), std::string(message)};
}

}  // namespace

std::unique_ptr<tx_prj> parse_project(std::string_view text, project_file_error& error) {
  json document;
  try {
    document = json::parse(text);
  } catch (const json::parse_error& e) {
    error = describe(e);
    return nullptr;
  } catch (const json::exception& e) {
    error = describe(e, text);
    return nullptr;
  }
  try {
    return project_reader().read(document);
  } catch (const detail::refusal& r) {
    error = {r.where, r.what};
    return nullptr;
  }
}

}  // namespace tx::host
