// The one project model of the process. It lives in txk_prj, a shared library loaded once per
// process in both builds, so that every host library and plug-in sees the same project: the
// other host libraries reach it only through txk_prj's exported functions (tx_host/project.h).
#pragma once

#include "tx_host/project/project_model.h"

namespace tx::host {

project_model& the_project() noexcept;

}  // namespace tx::host
