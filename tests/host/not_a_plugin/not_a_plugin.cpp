// A valid shared library that is not a plug-in: it exports a function, but not the bundle entry.
#include "tx/abi.h"

TX_PLUGIN_EXPORT int tx_not_a_plugin_marker(void) { return 1; }
