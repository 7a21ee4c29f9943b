// txk_prj's host-side functions: opening and saving project files, changing the project as the
// host's user would, the records the tests read, and the entry points of txk_entity.
#include "host_export.h"
#include "project_instance.h"
#include "tx_host/project.h"

using tx::host::the_project;

extern "C" {

TX_HOST_SIDE_EXPORT bool tx_host_project_load(const char* path) {
  if (path == nullptr) return false;
  try {
    return the_project().load(path);
  } catch (...) {
    return false;  // even the message could not be made
  }
}

TX_HOST_SIDE_EXPORT bool tx_host_project_save(const char* path) {
  if (path == nullptr) return false;
  try {
    return the_project().save(path);
  } catch (...) {
    return false;  // even the message could not be made
  }
}

TX_HOST_SIDE_EXPORT const char* tx_host_project_error(void) {
  return the_project().error().c_str();
}

TX_HOST_SIDE_EXPORT void tx_host_project_clear(void) { the_project().close(); }

TX_HOST_SIDE_EXPORT bool tx_host_project_remove(tx_uuid uuid) {
  try {
    return the_project().remove(uuid);
  } catch (...) {
    return false;
  }
}

TX_HOST_SIDE_EXPORT void tx_host_project_set_invert_layers(bool on) {
  the_project().set_invert_layers(on);
}

TX_HOST_SIDE_EXPORT size_t tx_host_project_caption_write_count(void) {
  return the_project().caption_writes().size();
}

TX_HOST_SIDE_EXPORT bool tx_host_project_caption_write(size_t index, tx_host_caption_write* write) {
  const auto& writes = the_project().caption_writes();
  if (write == nullptr || index >= writes.size()) return false;
  *write = writes[index];
  return true;
}

TX_HOST_SIDE_EXPORT void tx_host_project_update_bracket(tx_host_update_bracket* state) {
  if (state != nullptr) *state = the_project().bracket().state();
}

TX_HOST_SIDE_EXPORT void tx_host_project_clear_records(void) { the_project().clear_records(); }

TX_HOST_SIDE_EXPORT tx_entity* tx_host_project_find(tx_uuid uuid) {
  return the_project().find(uuid);
}

TX_HOST_SIDE_EXPORT void tx_host_project_set_caption(tx_entity* entity, const char16_t* caption) {
  if (entity == nullptr || caption == nullptr) return;
  try {
    the_project().set_caption(*entity, caption);
  } catch (...) {
    // Out of memory: the caption stays as it was and nothing is recorded.
  }
}

TX_HOST_SIDE_EXPORT void tx_host_project_begin_update(tx_entity* entity) {
  if (entity != nullptr) the_project().bracket().begin(entity);
}

TX_HOST_SIDE_EXPORT void tx_host_project_end_update(tx_entity* entity) {
  if (entity != nullptr) the_project().bracket().end();
}

}  // extern "C"
