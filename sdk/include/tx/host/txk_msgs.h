/* txk_msgs: warnings and progress shown to the user. */
#ifndef TX_HOST_TXK_MSGS_H
#define TX_HOST_TXK_MSGS_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

/* Shows a warning box with `text` (NUL-terminated, borrowed) and waits for the user. */
TX_HOST_API void tx_show_wwarning(const char16_t* text);
/* A progress indicator, or null when none can be shown; `argument` is passed null. */
TX_HOST_API tx_progress* tx_progress_create(void* argument);
/* Reports the fraction done, 0 to 1. */
TX_HOST_API void tx_progress_report(tx_progress* progress, double fraction);
TX_HOST_API void tx_progress_destroy(tx_progress* progress);

TX_END_DECLS

#endif
