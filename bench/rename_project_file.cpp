#include "rename_project_file.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string_view>
#include <system_error>

#include "project_text.h"
#include "tx_host/project.h"

namespace tx::bench {
namespace {

constexpr std::array<std::string_view, 5> latin_themes{"roads", "rivers", "wells", "grid",
                                                       "labels"};
constexpr std::array<std::string_view, 5> cyrillic_themes{"дороги", "реки", "скважины", "сетка",
                                                          "подписи"};

// Writes the project's compact JSON, scene by scene, until the count is spent.
class project_writer : project_text {
 public:
  project_writer(std::ostream& out, std::size_t elements) : project_text(out, elements) {}

  void write() {
    text_ += R"({"format":"tarvex-project","version":1,"caption":"Проект project )";
    number(left_);
    text_ += R"(","options":{"invert_layers":false},"scenes_2d":{"caption":"2D-сцены","scenes":[)";
    for (std::size_t scene = 1; left_ > 0; ++scene) {
      if (scene > 1) text_ += ',';
      write_scene(scene);
      flush();
    }
    text_ += R"(]},"scenes_3d":{"caption":"3D-сцены","scenes":[]},)";
    text_ += R"("layouts":{"caption":"Компоновки","scenes":[]},"plugin_collections":[]})";
    text_ += '\n';
    flush();
  }

 private:
  void write_scene(std::size_t scene) {
    open_element();
    text_ += scene % 2 == 1 ? "Map layers " : "Карта ";
    number(scene);
    text_ += R"(","layers":[)";
    const std::size_t groups = rename_layers_per_scene / rename_layers_per_group;
    for (std::size_t g = 1; g <= groups && left_ > 0; ++g) {
      if (g > 1) text_ += ',';
      open_element();
      text_ += g % 2 == 1 ? "layer group " : "группа слоёв ";
      path(scene, g);
      text_ += R"(","group":true,"expanded":)";
      text_ += g == 1 ? "true" : "false";
      text_ += R"(,"children":[)";
      for (std::size_t l = 1; l <= rename_layers_per_group && left_ > 0; ++l) {
        if (l > 1) text_ += ',';
        open_element();
        const std::size_t theme = (g + l) % latin_themes.size();
        text_ += l % 2 == 1 ? "Layer " : "Слой ";
        path(scene, g);
        text_ += '.';
        number(l);
        text_ += ' ';
        text_ += l % 2 == 1 ? latin_themes[theme] : cyrillic_themes[theme];
        text_ += R"(","group":false,"expanded":false})";
      }
      text_ += "]}";
    }
    text_ += "]}";
  }
};

std::filesystem::path with_suffix(const std::filesystem::path& path, std::string_view suffix) {
  std::filesystem::path other = path;
  other += suffix;
  return other;
}

}  // namespace

std::optional<std::filesystem::path> rename_project_file(const std::filesystem::path& folder,
                                                         std::size_t elements, std::string& error) {
  // The shape's version is in the name: a file of an older shape is never taken for this one.
  const std::filesystem::path path =
      folder / ("rename_project_v1_" + std::to_string(elements) + ".json");
  std::error_code failure;
  if (std::filesystem::is_regular_file(path, failure)) return path;
  std::filesystem::create_directories(folder, failure);
  const std::filesystem::path compact = with_suffix(path, ".compact");
  {
    std::ofstream out(compact, std::ios::binary | std::ios::trunc);
    project_writer(out, elements).write();
    out.close();
    if (!out) {
      error = "cannot write " + compact.string();
      return std::nullopt;
    }
  }
  // The host's save writes beside the file and renames it into place.
  const bool made =
      tx_host_project_load(compact.string().c_str()) && tx_host_project_save(path.string().c_str());
  if (!made) error = tx_host_project_error();
  tx_host_project_clear();
  std::filesystem::remove(compact, failure);
  if (!made) return std::nullopt;
  return path;
}

std::optional<bool> saves_identically(const std::filesystem::path& path, std::string& error) {
  const std::filesystem::path again = with_suffix(path, ".again");
  const bool saved =
      tx_host_project_load(path.string().c_str()) && tx_host_project_save(again.string().c_str());
  if (!saved) error = tx_host_project_error();
  tx_host_project_clear();
  if (!saved) return std::nullopt;
  const bool same = same_bytes(path, again);
  std::error_code failure;
  std::filesystem::remove(again, failure);
  return same;
}

bool same_bytes(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code failure;
  const auto size = std::filesystem::file_size(a, failure);
  if (failure || std::filesystem::file_size(b, failure) != size || failure) return false;
  std::ifstream first(a, std::ios::binary);
  std::ifstream second(b, std::ios::binary);
  std::string one(1 << 20, '\0');
  std::string two(1 << 20, '\0');
  while (first && second) {
    first.read(one.data(), static_cast<std::streamsize>(one.size()));
    second.read(two.data(), static_cast<std::streamsize>(two.size()));
    if (first.gcount() != second.gcount() ||
        one.compare(0, static_cast<std::size_t>(first.gcount()), two, 0,
                    static_cast<std::size_t>(second.gcount())) != 0) {
      return false;
    }
  }
  return first.eof() && second.eof();
}

}  // namespace tx::bench
