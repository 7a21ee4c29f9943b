#include "project_commands.h"

#include <algorithm>

#include "project_tree.h"
#include "tx/host/txk_entity.h"
#include "tx/host/txk_prj.h"
#include "tx_host/dialog/dialog_actions.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/project.h"
#include "tx_host/project/uuid_text.h"

namespace tx::host {

using dialog::failure;
using dialog::quoted;

dialog::command_outcome project_commands::run(const dialog::command& c) {
  if (c.what != dialog::verb::remove) return failure("not a command for the host");
  const std::string& wanted = c.arguments.at(0);
  const std::vector<project_element> elements = project_elements(tx_prj_get_instance());
  const project_element* target = nullptr;
  if (const auto uuid = uuid_from_text(wanted); uuid && wanted.size() == 16) {
    const auto found = std::find_if(
        elements.begin(), elements.end(),
        [&](const project_element& e) { return tx_uuid_equal(e.uuid, tx_uuid{*uuid}); });
    if (found != elements.end()) target = &*found;
  } else {
    for (const project_element& e : elements) {
      if (e.caption != wanted) continue;
      if (target != nullptr) {
        return failure("more than one project element is captioned " + quoted(wanted) +
                       ": give its uuid");
      }
      target = &e;
    }
  }
  if (target == nullptr || !tx_host_project_remove(target->uuid)) {
    return failure("no project element " + quoted(wanted));
  }
  return {std::nullopt,
          "host: deleted " + uuid_to_text(target->uuid) + " " + quoted(target->caption) +
              " from the project\n",
          {}};
}

}  // namespace tx::host
