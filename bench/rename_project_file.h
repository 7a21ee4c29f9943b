// The project files the project-file benchmark opens, renames and saves: a given number of
// elements in 2D scenes of 10,000 layers each, the layers in groups of 50, half the captions
// Latin and half Cyrillic («Layer 3.17.2 roads», «Слой 3.17.3 дороги», «layer group 3.17»,
// «группа слоёв 3.18»), so that a find and replace of «layer» ignoring case changes about half
// of them. The file is in the saved form, exactly as txhost writes it (two-space indentation).
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace tx::bench {

inline constexpr std::size_t rename_layers_per_scene = 10'000;
inline constexpr std::size_t rename_layers_per_group = 50;

// The project file of `elements` elements in `folder`, made there first when it is not there
// yet: written compact, then opened and saved once by the host's project model, so that it is
// what a save writes; every step goes through a temporary file, so that a cut-short run leaves
// no half file under the final name. Nothing (and `error` says why) when it cannot be made.
std::optional<std::filesystem::path> rename_project_file(const std::filesystem::path& folder,
                                                         std::size_t elements, std::string& error);

// Whether opening `path` and saving it again writes the same bytes (through a scratch file
// beside it, removed afterwards). Nothing (and `error` says why) when it could not be tried.
std::optional<bool> saves_identically(const std::filesystem::path& path, std::string& error);

// Whether the two files hold the same bytes; false when either cannot be read.
bool same_bytes(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace tx::bench
