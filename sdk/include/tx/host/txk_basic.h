/* txk_basic: the interface language, small conversions, the string adapter, help, and the
   host's shared resources (reached by module name, not declared here). */
#ifndef TX_HOST_TXK_BASIC_H
#define TX_HOST_TXK_BASIC_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

/* The module name under which the host's shared resources are found. */
#define TX_BASIC_MODULE_NAME u"txk_basic.dll"

/* The language offset added to a string's base id: 0 Russian, 50000 English. */
TX_HOST_API int32_t tx_res_get_lng(void);
/* A check mode from an on/off value: true gives 0 (tick), false gives 1 (untick). */
TX_HOST_API int32_t tx_bool_to_3state(bool on);

/* Called by the host to fill the caller's string with `length` units at `text`. */
typedef void (*tx_string_adp_assign_fn)(void* target, const char16_t* text, size_t length);
/* An adapter that writes into the caller's string through `assign`; owned by the caller,
   released with tx_string_adp_destroy. */
TX_HOST_API tx_string_adp* tx_string_adp_create(void* target, tx_string_adp_assign_fn assign);
TX_HOST_API void tx_string_adp_destroy(tx_string_adp* adapter);

/* The help topic registered for a numeric key, or 0. */
TX_HOST_API int32_t tx_help_mngr_find_help_id(int32_t key);
/* Shows a help topic; `mode` 1 opens the topic itself. */
TX_HOST_API void tx_help_mngr_show_help(int32_t mode, int32_t help_id);

TX_END_DECLS

#endif
