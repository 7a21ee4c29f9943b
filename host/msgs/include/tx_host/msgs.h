/* txk_msgs, host side: the record of what plug-ins showed through txk_msgs, for the runner and
   the tests to read and clear. Every warning and every progress report is recorded in order
   since the last clear. Plain C; UI thread (the record is also safe to read from another). */
#ifndef TX_HOST_MSGS_H
#define TX_HOST_MSGS_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* Number of warnings shown since the last clear. */
TX_HOST_API size_t tx_host_msgs_warning_count(void);
/* The text of warning `index`, oldest first: NUL-terminated UTF-16 owned by txk_msgs, valid
   until the next clear. Null past the end. */
TX_HOST_API const char16_t* tx_host_msgs_warning(size_t index);

/* Number of fractions reported to any progress indicator since the last clear. */
TX_HOST_API size_t tx_host_msgs_progress_report_count(void);
/* The fraction of report `index`, oldest first, as reported; -1 past the end. */
TX_HOST_API double tx_host_msgs_progress_report(size_t index);
/* Number of progress indicators created, and destroyed, since the last clear. */
TX_HOST_API size_t tx_host_msgs_progress_created(void);
TX_HOST_API size_t tx_host_msgs_progress_destroyed(void);

/* Whether tx_show_wwarning also writes "warning: TEXT" to stderr (on until switched off). A host
   that shows the recorded warnings itself switches the echo off. */
TX_HOST_API void tx_host_msgs_set_echo(bool on);
TX_HOST_API bool tx_host_msgs_echo(void);

/* How a host with windows shows what plug-ins report, beside the record: each function, when
   set, is called on the UI thread after the report is recorded. `indicator` names one
   progress indicator from its creation to its destruction. */
typedef struct tx_host_msgs_presenter {
  void* context;
  void (*warning)(void* context, const char16_t* text);
  void (*progress_started)(void* context, const void* indicator);
  void (*progress_reported)(void* context, const void* indicator, double fraction);
  void (*progress_ended)(void* context, const void* indicator);
} tx_host_msgs_presenter;

/* Shows every later report through `presenter` (copied; null: through nothing but the record). */
TX_HOST_API void tx_host_msgs_set_presenter(const tx_host_msgs_presenter* presenter);

/* Forgets every recorded warning, report and count. Indicators still alive stay usable. */
TX_HOST_API void tx_host_msgs_clear(void);

TX_END_DECLS

#endif
