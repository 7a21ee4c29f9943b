// Writing a project as its document, streamed from the model by the JSON library's writer: the
// same keys the reader takes, in a fixed order, two-space indentation, so that reading a saved
// file and saving it again gives the same bytes. Into a temporary file beside the target, which
// then replaces it.
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <array>
#include <system_error>
#include <utility>
#include <vector>

#include "c_file.h"
#include "tx_host/project/project_file.h"
#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

constexpr std::size_t write_buffer_size = 256 * 1024;

template <typename Stream>
class document_writer {
 public:
  explicit document_writer(Stream& stream) : stream_(stream), out_(stream) {
    out_.SetIndent(' ', 2);
  }

  // The whole document, and the line end after it.
  void write(const tx_prj& project) {
    out_.StartObject();
    key("format");
    text(project_format_name);
    key("version");
    out_.Int(project_format_version);
    key("caption");
    caption(project.caption);
    key("options");
    out_.StartObject();
    key("invert_layers");
    out_.Bool(project.invert_layers);
    out_.EndObject();
    key("scenes_2d");
    collection(project.scenes_2d, project.scenes_2d.scenes);
    key("scenes_3d");
    collection(project.scenes_3d, project.scenes_3d.scenes);
    key("layouts");
    collection(project.layouts, project.layouts.scenes);
    key("plugin_collections");
    out_.StartArray();
    for (const auto& plugin : project.plugin_collections) {
      collection(*plugin, plugin->scenes, &plugin->meta_id);
    }
    out_.EndArray();
    out_.EndObject();
    stream_.Put('\n');
  }

 private:
  void key(std::string_view name) { out_.Key(name.data(), static_cast<unsigned>(name.size())); }
  void text(std::string_view value) {
    out_.String(value.data(), static_cast<unsigned>(value.size()));
  }
  // Captions are UTF-16 in the model: converted through one buffer that keeps its room.
  void caption(std::u16string_view value) {
    to_utf8(value, utf8_);
    text(utf8_);
  }
  void uuid(tx_uuid value) {
    const std::array<char, 16> digits = uuid_digits(value);
    out_.String(digits.data(), static_cast<unsigned>(digits.size()));
  }

  // A collection of scenes; a plug-in's has its meta id first.
  void collection(const tx_entity& holder, const std::vector<tx_scn*>& scenes,
                  const std::string* meta_id = nullptr) {
    out_.StartObject();
    if (meta_id != nullptr) {
      key("meta_id");
      text(*meta_id);
    }
    key("caption");
    caption(holder.caption);
    key("scenes");
    out_.StartArray();
    for (const tx_scn* scene : scenes) write_scene(*scene);
    out_.EndArray();
    out_.EndObject();
  }
  void write_scene(const tx_scn& scene) {
    out_.StartObject();
    key("uuid");
    uuid(scene.uuid);
    key("caption");
    caption(scene.caption);
    if (scene.layers != nullptr) {
      key("layers");
      layers(*scene.layers);
    }
    out_.EndObject();
  }

  void layers(const tx_lr_group& group) {
    out_.StartArray();
    for (const tx_lr_group* layer : group.children()) write_layer(*layer);
    out_.EndArray();
  }

  void write_layer(const tx_lr_group& layer) {
    out_.StartObject();
    key("uuid");
    uuid(layer.uuid);
    key("caption");
    caption(layer.caption);
    key("group");
    out_.Bool(layer.is_group);
    key("expanded");
    out_.Bool(layer.expanded);
    if (layer.is_group) {
      key("children");
      layers(layer);
    }
    out_.EndObject();
  }

  Stream& stream_;
  rapidjson::PrettyWriter<Stream> out_;
  std::string utf8_;
};

std::string utf8_file_name(const std::filesystem::path& path) {
  const std::u8string name = path.filename().u8string();
  return std::string(name.begin(), name.end());
}

// Writes the document into `file`; false when the file could not take it all.
bool write_document(const tx_prj& project, std::FILE* file) {
  std::vector<char> buffer(write_buffer_size);
  rapidjson::FileWriteStream stream(file, buffer.data(), buffer.size());
  document_writer<rapidjson::FileWriteStream>(stream).write(project);
  stream.Flush();
  return std::fflush(file) == 0 && std::ferror(file) == 0;
}

}  // namespace

std::string format_project(const tx_prj& project) {
  rapidjson::StringBuffer buffer;
  document_writer<rapidjson::StringBuffer>(buffer).write(project);
  return std::string(buffer.GetString(), buffer.GetSize());
}

bool write_project_file(const tx_prj& project, const std::filesystem::path& path,
                        project_file_error& error) {
  std::filesystem::path temporary = path;
  temporary += ".saving";
  std::error_code ec;
  {
    detail::c_file file = detail::open_c_file(temporary, "wb");
    if (!file) {
      error = {"", "cannot create the temporary file " + utf8_file_name(temporary)};
      return false;
    }
    const bool written = write_document(project, file.get());
    if (std::fclose(file.release()) != 0 || !written) {
      std::filesystem::remove(temporary, ec);
      error = {"", "cannot write the temporary file " + utf8_file_name(temporary)};
      return false;
    }
  }
  std::filesystem::rename(temporary, path, ec);
  if (ec) {
    error = {"", "cannot replace the file: " + ec.message()};
    std::filesystem::remove(temporary, ec);
    return false;
  }
  return true;
}

}  // namespace tx::host
