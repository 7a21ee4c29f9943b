// The commands by which a script acts as another part of the host on the open project while the
// plug-in's dialog is shown: `delete ELEMENT` removes a scene, layer group or layer (and all
// beneath it) from the project, as the host's user could do in another window.
#pragma once

#include "tx_host/dialog/host_commands.h"

namespace tx::host {

class project_commands final : public dialog::host_commands {
 public:
  project_commands() = default;

  // ELEMENT: the element's uuid as txhost prints it (16 hexadecimal digits), or the caption of
  // exactly one scene, layer group or layer of the open project.
  dialog::command_outcome run(const dialog::command& c) override;
};

}  // namespace tx::host
