// txk_entity: uuids and captions of any entity, and the entity storage. What needs the whole
// project (finding by uuid, setting a caption) runs in txk_prj, which holds it.
#include "tx/host/txk_entity.h"

#include "caption.h"
#include "tx_host/project.h"

void tx_entities_get_wcaption(tx_entities* entities, tx_string_adp* adapter) {
  tx::host::write_caption(entities, adapter);
}

tx_entity* tx_entities_safe_upcast(tx_entities* holder) { return holder; }

tx_uuid tx_entity_get_uuid(tx_entity* entity) {
  return entity != nullptr ? entity->uuid : tx_uuid{};
}

tx_entity* tx_entity_storage_find_by_uid(tx_uuid uuid) { return tx_host_project_find(uuid); }

void tx_entity_get_wcaption(tx_entity* entity, tx_string_adp* adapter) {
  tx::host::write_caption(entity, adapter);
}

void tx_entity_set_wcaption(tx_entity* entity, const char16_t* caption) {
  tx_host_project_set_caption(entity, caption);
}

size_t tx_uuid_hash(tx_uuid uuid) {
  // The finaliser of splitmix64: every bit of the uuid reaches every bit of the hash, so that a
  // plug-in gains nothing by assuming the hash is the value.
  uint64_t x = uuid.opaque;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9u;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebu;
  return static_cast<size_t>(x ^ (x >> 31));
}

bool tx_uuid_equal(tx_uuid a, tx_uuid b) { return a.opaque == b.opaque; }
