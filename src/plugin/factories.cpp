// The plug-in's service factories, constructed at load in this order (each entering the
// registry) and destroyed at unload in reverse (each leaving it).
#include <memory>
#include <vector>

#include "plugin/client_factory.h"
#include "plugin/modal_dialog_service.h"
#include "plugin/project_rename_utility.h"
#include "plugin/service_holder.h"

namespace tx {
namespace {

using utility_holder =
    util::detail::ref_service_holder<project_rename_utility, tx_utility_service_interface_2,
                                     utility_service_impl, tx_utility_service_visitor_interface_2>;

std::vector<std::unique_ptr<util::detail::service_holder_base<project_rename_utility>>>
utility_holders() {
  std::vector<std::unique_ptr<util::detail::service_holder_base<project_rename_utility>>> holders;
  holders.push_back(std::make_unique<utility_holder>());
  return holders;
}

util::detail::modal_dialog_service_factory<0> generic_dialogs;
util::service_factory<project_rename_utility> utilities{TX_UTILITY_NAMESPACE_KEY,
                                                        utility_holders()};
util::detail::modal_dialog_service_factory<&project_rename_utility::id> rename_dialogs;
util::client_factory client{project_rename_utility::id};

}  // namespace
}  // namespace tx
