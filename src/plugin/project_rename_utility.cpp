#include "plugin/project_rename_utility.h"

namespace tx {

void project_rename_utility::visit_utilities(custom_pointer visitor) {
  call<tx_utility_visitor_interface_2>(visitor, &tx_utility_visitor_interface_2::visit, id,
                                       command_.pointer());
}

}  // namespace tx
