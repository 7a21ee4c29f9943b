// The rename utility's run, instantiated here where the dialog's content is complete.
#include "element/project_rename_widget.h"
#include "plugin/project_rename_utility.h"
#include "toolkit/utility_run.h"

namespace tx::toolkit {

template void run_utility(project_rename_utility::command_type& command);

}  // namespace tx::toolkit
