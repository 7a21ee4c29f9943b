#include "project_instance.h"

namespace tx::host {

project_model& the_project() noexcept {
  // Constructed on first use, destroyed when txk_prj unloads.
  static project_model instance;
  return instance;
}

}  // namespace tx::host
