/* txk_basic, host side: what the reference host itself calls and no plug-in imports. */
#ifndef TX_HOST_BASIC_H
#define TX_HOST_BASIC_H

#include "tx/host/txk_basic.h"

TX_BEGIN_DECLS

/* Sets the language offset that tx_res_get_lng returns: 0 Russian, 50000 English. */
TX_HOST_API void tx_host_set_lng(int32_t offset);

/* What a caption getter of the host calls to fill the plug-in's string through `adapter`:
   hands it `length` units at `text` (a null text counts as empty). A null adapter is ignored. */
TX_HOST_API void tx_host_string_adp_assign(tx_string_adp* adapter, const char16_t* text,
                                           size_t length);

/* The topic and mode of the last tx_help_mngr_show_help call; 0 and 0 before the first. */
TX_HOST_API int32_t tx_host_last_help_id(void);
TX_HOST_API int32_t tx_host_last_help_mode(void);

TX_END_DECLS

#endif
