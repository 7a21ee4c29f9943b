/* The SDK seen by a C compiler: the sizes it gives every table, for the C++ side to compare. */
#include "all_headers.h"

#define TX_LAYOUT(type) sizeof(type),
const size_t tx_sdk_sizes_in_c[] = {
#include "sdk_layout.inc"
};
const size_t tx_sdk_count_in_c = sizeof tx_sdk_sizes_in_c / sizeof tx_sdk_sizes_in_c[0];
