#include "tree_session.h"

#include "rename/find_replace.h"
#include "tree/build.h"
#include "tree/execute.h"
#include "tree_project_file.h"
#include "tx/host/txk_entity.h"
#include "tx/host/txk_prj.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"

namespace tx::bench {

tree_session::tree_session(const std::filesystem::path& folder, std::size_t elements)
    : elements_(elements) {
  const auto path = scale_project_file(folder, elements);
  if (!path) {
    error_ = "cannot write the project file into " + folder.string();
    return;
  }
  if (!tx_host_project_load(path->string().c_str())) {
    error_ = tx_host_project_error();
    return;
  }
  tx_host_msgs_clear();
}

void tree_session::build_ticked_tree() {
  build_tree(tx_prj_get_instance(), root);
  root->set_check(check_tick, false);
}

void tree_session::set_find_replace() {
  auto& find_replace = static_cast<prjrename_find_replace&>(*operations.operations()[0]);
  find_replace.settings().search.assign_text(u"layer");
  find_replace.settings().replacement.assign_text(u"слой");
}

void tree_session::make_ready() {
  if (!error_.empty()) return;
  if (!root) build_ticked_tree();
  if (names && names->undo_steps().size() == 1 && !names->can_redo()) return;
  if (names && names->can_redo() && !names->can_undo()) {
    names->redo();
    return;
  }
  names = std::make_unique<prjrename_names>();
  set_find_replace();
  execute_operations(operations, *root, *names);
}

void tree_session::write_names(bool new_names) {
  if (!names) return;
  for (const prjrename_name& entry : names->entries()) {
    if (tx_entity* entity = tx_entity_storage_find_by_uid(entry.uuid)) {
      tx_entity_set_wcaption(entity, (new_names ? entry.new_name : entry.old_name).c_str());
    }
  }
}

void tree_session::restore_captions() {
  write_names(false);
  tx_host_project_clear_records();
  tx_host_msgs_clear();
}

}  // namespace tx::bench
