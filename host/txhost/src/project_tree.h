// The open project as the host's libraries answer for it: what txhost --project prints.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "tx/host/handles.h"

namespace tx::host {

// One element a line, in UTF-8, each level indented by two more spaces:
//   project "Город" (invert_layers: no)
//   scenes_2d "Двумерные сцены"
//     scene 00000000000000a1 "Центр"
//       group 00000000000000a2 "Улицы" expanded
//         layer 00000000000000a3 "Магистрали" collapsed
//     scene 00000000000000a4 "Пусто" (no layer group)
//   plugin_collection plugin_scn_2d_well_planshet_collection3 "Планшеты"
// Collections come in the host's order (2D scenes, 3D scenes, layouts, then the plug-ins'),
// children in the host's order whatever the invert-layers option says. Printed to `out` in
// pieces; after `listed` lines the rest is only counted, and one last line tells how many more
// there are: "… and 1,009,603 more elements (--all lists them all)".
void print_project(tx_prj* project, std::FILE* out, std::size_t listed);

// A scene, layer group or layer of the project: what the host's user can delete.
struct project_element {
  tx_uuid uuid{};
  std::string caption;  // UTF-8
};

// Every scene, layer group and layer of `project`, in the order print_project lists them.
std::vector<project_element> project_elements(tx_prj* project);

}  // namespace tx::host
