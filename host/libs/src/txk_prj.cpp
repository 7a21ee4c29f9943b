// txk_prj: the open project and its options.
#include "tx/host/txk_prj.h"

#include <algorithm>
#include <cstdint>

#include "project_instance.h"

using tx::host::the_project;

tx_prj* tx_prj_get_instance(void) { return the_project().project(); }

tx_entity* tx_prj_safe_upcast(tx_prj* project) { return project; }

tx_scns_2d* tx_prj_get_scns_2d_ptr(tx_prj* project) {
  return project != nullptr ? &project->scenes_2d : nullptr;
}

tx_scns_3d* tx_prj_get_scns_3d_ptr(tx_prj* project) {
  return project != nullptr ? &project->scenes_3d : nullptr;
}

tx_scns_2d* tx_prj_get_layouts_data_ptr(tx_prj* project) {
  return project != nullptr ? &project->layouts : nullptr;
}

int32_t tx_prj_get_plugin_scns_2d_count(tx_prj* project) {
  if (project == nullptr) return 0;
  constexpr std::size_t most = INT32_MAX;
  return static_cast<int32_t>(std::min(project->plugin_collections.size(), most));
}

tx_scns_2d* tx_prj_get_plugin_scns_2d_ptr(tx_prj* project, int32_t index) {
  if (project == nullptr || index < 0 ||
      static_cast<std::size_t>(index) >= project->plugin_collections.size()) {
    return nullptr;
  }
  return project->plugin_collections[static_cast<std::size_t>(index)].get();
}

bool tx_options_get_invert_layers(void) {
  const tx_prj* project = the_project().project();
  return project != nullptr && project->invert_layers;
}
