/* txk_entity: entities, their uuids and captions, the entity storage and update brackets. */
#ifndef TX_HOST_TXK_ENTITY_H
#define TX_HOST_TXK_ENTITY_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

/* Writes a collection's caption into `adapter`. */
TX_HOST_API void tx_entities_get_wcaption(tx_entities* entities, tx_string_adp* adapter);
/* A holder as an entity. */
TX_HOST_API tx_entity* tx_entities_safe_upcast(tx_entities* holder);
TX_HOST_API tx_uuid tx_entity_get_uuid(tx_entity* entity);
/* The live entity with `uuid` in the open project, or null. */
TX_HOST_API tx_entity* tx_entity_storage_find_by_uid(tx_uuid uuid);
/* Writes the entity's caption into `adapter`. */
TX_HOST_API void tx_entity_get_wcaption(tx_entity* entity, tx_string_adp* adapter);
/* Sets the entity's caption; `caption` is NUL-terminated and borrowed for the call. */
TX_HOST_API void tx_entity_set_wcaption(tx_entity* entity, const char16_t* caption);
TX_HOST_API size_t tx_uuid_hash(tx_uuid uuid);
TX_HOST_API bool tx_uuid_equal(tx_uuid a, tx_uuid b);

/* Optional exports: a host may leave them out, so a plug-in looks them up by name in
   txk_entity at run time and calls them only when present. They open and close a bracket over
   an entity and everything beneath it, in which the host defers its notifications. */
#define TX_ENTITY_BEGIN_UPDATE_RECURSIVE_NAME "tx_entity_begin_update_recursive"
#define TX_ENTITY_END_UPDATE_RECURSIVE_NAME "tx_entity_end_update_recursive"
typedef void (*tx_entity_update_recursive_fn)(tx_entity* entity);

TX_END_DECLS

#endif
