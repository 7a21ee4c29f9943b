/* The reference host's project, host side: what txhost and the tests call and no plug-in
   imports. Exported by txk_prj, which holds the one project model of the process; the other
   host libraries read the nodes they are handed and come here for anything that needs the whole
   project or changes it. Plain C; UI thread. */
#ifndef TX_HOST_PROJECT_H
#define TX_HOST_PROJECT_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

/* ---- Opening and saving ---- */

/* Opens the project file at `path` (UTF-8, see docs/project-format.md). On success the file's
   project replaces the open one (whose handles die with it), the records below start empty, and
   the result is true. A file that cannot be read or is refused leaves the open project and the
   records exactly as they were; the result is false and tx_host_project_error() tells why. */
TX_HOST_API bool tx_host_project_load(const char* path);
/* Writes the open project, with its current captions, to `path` (UTF-8): into a temporary file
   beside it, then renamed over it, so that a failed save leaves any old file whole. False when
   no project is open or the file cannot be written; tx_host_project_error() tells why. */
TX_HOST_API bool tx_host_project_save(const char* path);
/* Why the last load or save failed: "FILE: WHERE: WHAT" (WHERE, a JSON pointer or a line and
   column, is left out when the whole file is meant), UTF-8, owned by txk_prj and valid until
   the next load or save; empty after a success. */
TX_HOST_API const char* tx_host_project_error(void);
/* Closes the open project: tx_prj_get_instance answers null until the next load. */
TX_HOST_API void tx_host_project_clear(void);

/* ---- Changing the open project as the host's user would ---- */

/* Removes the scene, layer group or layer with `uuid`, and everything beneath it, from the open
   project: tx_entity_storage_find_by_uid no longer finds them and a save leaves them out. Their
   handles stay readable until the project is closed. False when no live element has `uuid`. */
TX_HOST_API bool tx_host_project_remove(tx_uuid uuid);
/* Sets the open project's invert-layers option (tx_options_get_invert_layers). */
TX_HOST_API void tx_host_project_set_invert_layers(bool on);

/* ---- What plug-ins did, recorded since the last load or clear of the records ---- */

/* One caption write through tx_entity_set_wcaption. */
typedef struct tx_host_caption_write {
  tx_uuid uuid;                /* the entity's uuid (null for the project or a collection) */
  const char16_t* old_caption; /* NUL-terminated, owned by txk_prj, valid until the records */
  const char16_t* new_caption; /*   are cleared or another project is loaded */
  size_t depth;                /* update brackets open at the time of the write */
} tx_host_caption_write;

/* Number of caption writes recorded. */
TX_HOST_API size_t tx_host_project_caption_write_count(void);
/* Fills `write` with write `index`, oldest first; false (and `write` untouched) past the end. */
TX_HOST_API bool tx_host_project_caption_write(size_t index, tx_host_caption_write* write);

/* The recursive update bracket: tx_entity_begin_update_recursive and
   tx_entity_end_update_recursive nest; caption-change notifications raised while a bracket is
   open are held back and delivered together when the outermost one closes. */
typedef struct tx_host_update_bracket {
  size_t begins;         /* begin calls */
  size_t ends;           /* end calls, one without a matching begin included */
  size_t depth;          /* brackets open now */
  size_t deferred;       /* notifications held back now */
  size_t delivered;      /* notifications delivered */
  tx_entity* last_begin; /* the entity of the last begin call, or null */
} tx_host_update_bracket;

/* Fills `state` with the bracket's counters. */
TX_HOST_API void tx_host_project_update_bracket(tx_host_update_bracket* state);

/* Forgets the caption writes and the bracket's counters; open brackets stay open. */
TX_HOST_API void tx_host_project_clear_records(void);

/* ---- For txk_entity: its functions that need the whole project run here ---- */

/* The live element with `uuid` in the open project, or null (tx_entity_storage_find_by_uid). */
TX_HOST_API tx_entity* tx_host_project_find(tx_uuid uuid);
/* Sets the caption, records the write and raises the notification (tx_entity_set_wcaption). */
TX_HOST_API void tx_host_project_set_caption(tx_entity* entity, const char16_t* caption);
/* Opens and closes the update bracket (tx_entity_begin/end_update_recursive). */
TX_HOST_API void tx_host_project_begin_update(tx_entity* entity);
TX_HOST_API void tx_host_project_end_update(tx_entity* entity);

TX_END_DECLS

#endif
