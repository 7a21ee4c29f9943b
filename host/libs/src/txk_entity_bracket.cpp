// txk_entity's optional exports: the recursive update bracket. Left out of the variant
// txk_entity_nobracket, which stands for a host that does not have them.
#include "tx/host/txk_entity.h"
#include "tx_host/project.h"

TX_HOST_API void tx_entity_begin_update_recursive(tx_entity* entity) {
  tx_host_project_begin_update(entity);
}

TX_HOST_API void tx_entity_end_update_recursive(tx_entity* entity) {
  tx_host_project_end_update(entity);
}
