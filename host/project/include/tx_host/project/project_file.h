// Project files: the versioned JSON document of docs/project-format.md, read into a new project
// and written from one.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "tx_host/project/entity_storage.h"
#include "tx_host/project/nodes.h"

namespace tx::host {

inline constexpr std::string_view project_format_name = "tarvex-project";
inline constexpr int project_format_version = 1;

// Why a file was refused or could not be written: where in it (a JSON pointer such as
// /scenes_2d/scenes/3/layers/1/uuid, or "line 4, column 9" for broken JSON; empty when the
// whole file is meant) and what is wrong.
struct project_file_error {
  std::string where;
  std::string what;
};

// A path given as UTF-8, as txhost's command line and the C API take it.
std::filesystem::path path_from_utf8(std::string_view text);

// The project in `text`, or null with `error` set when the document is malformed or
// inconsistent. `index`, when given, receives every element of the project by its uuid.
// Nothing else outside the returned project is touched.
std::unique_ptr<tx_prj> parse_project(std::string_view text, project_file_error& error,
                                      entity_storage* index = nullptr);

// The project file at `path`, read as it streams in, or null with `error` set.
std::unique_ptr<tx_prj> read_project_file(const std::filesystem::path& path,
                                          project_file_error& error,
                                          entity_storage* index = nullptr);

// The document for `project`: two-space indentation, UTF-8, keys in a fixed order.
std::string format_project(const tx_prj& project);

// Streams the document into a temporary file beside `path` and renames it over `path`. False with
// `error` set when that fails; the old file, if any, is then as it was and no temporary file
// is left behind.
bool write_project_file(const tx_prj& project, const std::filesystem::path& path,
                        project_file_error& error);

}  // namespace tx::host
