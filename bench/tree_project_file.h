// The projects the tree benchmarks load: a given number of elements (scenes, layer groups and
// layers) in 2D scenes of 10,000 layers each, the layers in groups of 50, the groups in groups
// of 50 (two levels), and every caption holding «layer». The same elements, uuids and captions
// on every run; the last scene holds what is left of the count.
// Example captions: «map layers 7», «layer group 2», «layer group 2.17», «Layer 2.17.40 wells».
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

namespace tx::bench {

inline constexpr std::size_t layers_per_group = 50;
inline constexpr std::size_t groups_per_group = 50;
inline constexpr std::size_t groups_per_scene = 4;

// The project file of `elements` elements in `folder`, written there first when it is not
// there yet (through a temporary file, so that a cut-short run leaves no half file behind).
// Nothing when it cannot be written.
std::optional<std::filesystem::path> scale_project_file(const std::filesystem::path& folder,
                                                        std::size_t elements);

}  // namespace tx::bench
