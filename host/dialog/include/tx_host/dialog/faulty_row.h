// What the host does when the plug-in refused to close its dialog over rows whose new names are
// faulty (an empty name, say): the first faulty row, in the tree's order, is made reachable (the
// rows above it expanded) and becomes the only selected row, so that the user sees at once what to
// mend in a long list. Both hosts do it, through the outline's own interface.
#pragma once

#include "tx/abi.h"

namespace tx::host::dialog {

// Selects the first faulty row of `outline` (a tx_outline_interface_32 pair) as above; answers
// it, or the null pair when no row is faulty (then nothing changes).
tx_custom_pointer select_first_faulty(tx_custom_pointer outline);

}  // namespace tx::host::dialog
