#include "tree_project_file.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "project_text.h"

namespace tx::bench {
namespace {

constexpr std::string_view themes[] = {"roads",   "rivers",   "buildings", "parcels",
                                       "wells",   "contours", "labels",    "grid",
                                       "bridges", "forest",   "relief"};

// Writes the project's JSON, element by element, until the count is spent.
class project_writer : project_text {
 public:
  project_writer(std::ostream& out, std::size_t elements) : project_text(out, elements) {}

  void write() {
    text_ += R"({"format":"tarvex-project","version":1,"caption":"scale )";
    number(left_);
    text_ += R"(","options":{"invert_layers":false},"scenes_2d":{"caption":"2D scenes","scenes":[)";
    for (std::size_t scene = 0; left_ > 0; ++scene) {
      if (scene > 0) text_ += ',';
      write_scene(scene);
      flush();
    }
    text_ += R"(]},"scenes_3d":{"caption":"3D scenes","scenes":[]},)";
    text_ += R"("layouts":{"caption":"Layouts","scenes":[]},"plugin_collections":[]})";
    text_ += '\n';
    flush();
  }

 private:
  void write_scene(std::size_t scene) {
    open_element();
    text_ += "map layers ";
    number(scene + 1);
    text_ += R"(","layers":[)";
    for (std::size_t g = 0; g < groups_per_scene && left_ > 0; ++g) {
      if (g > 0) text_ += ',';
      open_element();
      text_ += "layer group ";
      number(g + 1);
      text_ += R"(","group":true,"expanded":true,"children":[)";
      for (std::size_t h = 0; h < groups_per_group && left_ > 0; ++h) {
        if (h > 0) text_ += ',';
        write_inner_group(g, h);
      }
      text_ += "]}";
    }
    text_ += "]}";
  }

  void write_inner_group(std::size_t g, std::size_t h) {
    open_element();
    text_ += "layer group ";
    path(g + 1, h + 1);
    text_ += R"(","group":true,"expanded":false,"children":[)";
    for (std::size_t l = 0; l < layers_per_group && left_ > 0; ++l) {
      if (l > 0) text_ += ',';
      open_element();
      text_ += l % 3 == 0 ? "Layer " : "layer ";
      path(g + 1, h + 1);
      text_ += '.';
      number(l + 1);
      text_ += ' ';
      text_ += themes[(next_uuid_ + l) % std::size(themes)];
      text_ += R"(","group":false,"expanded":false})";
    }
    text_ += "]}";
  }
};

}  // namespace

std::optional<std::filesystem::path> scale_project_file(const std::filesystem::path& folder,
                                                        std::size_t elements) {
  // The shape's version is in the name: a file of an older shape is never taken for this one.
  const std::filesystem::path path =
      folder / ("tree_scale_v1_" + std::to_string(elements) + ".json");
  std::error_code error;
  if (std::filesystem::is_regular_file(path, error)) return path;
  std::filesystem::create_directories(folder, error);
  std::filesystem::path part = path;
  part += ".part";
  {
    std::ofstream out(part, std::ios::binary | std::ios::trunc);
    project_writer(out, elements).write();
    out.close();
    if (!out) return std::nullopt;
  }
  std::filesystem::rename(part, path, error);
  if (error) return std::nullopt;
  return path;
}

}  // namespace tx::bench
