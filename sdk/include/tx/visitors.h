/* Visitors through which text and pixels cross the boundary: the receiving side passes the
   visitor in, the giving side calls its operation 1 with the value. */
#ifndef TX_VISITORS_H
#define TX_VISITORS_H

#include "tx/abi.h"

TX_BEGIN_DECLS

#define TX_STRING_VISITOR_INTERFACE_0 "tx_string_visitor_interface_0"
typedef struct tx_string_visitor_interface_0 {
  tx_root_fn root;
  /* `text`: NUL-terminated UTF-16, owned by the caller, valid during the call only. */
  void (*visit)(void* self, const char16_t* text);
} tx_string_visitor_interface_0;

/* Pixels as rows × columns × channels, each dimension with its own step in bytes. A bottom-up
   buffer is shown top row first by starting at its last stored row with a negative row step. */
#define TX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE_0 \
  "tx_thrice_interleaved_bytes_visitor_interface_0"
typedef struct tx_thrice_interleaved_bytes_visitor_interface_0 {
  tx_root_fn root;
  /* `first`: the first byte, owned by the caller, valid during the call only. */
  void (*visit)(void* self, int32_t rows, ptrdiff_t row_step, int32_t columns,
                ptrdiff_t column_step, int32_t channels, ptrdiff_t channel_step,
                const uint8_t* first);
} tx_thrice_interleaved_bytes_visitor_interface_0;

TX_STATIC_ASSERT(sizeof(tx_string_visitor_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_thrice_interleaved_bytes_visitor_interface_0) == 2 * sizeof(void*),
                 "2 slots");

TX_END_DECLS

#endif
