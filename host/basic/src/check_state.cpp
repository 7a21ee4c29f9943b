// Check modes of a tri-state check box from an on/off value.
#include "tx/host/txk_basic.h"

namespace {

constexpr int32_t ticked = 0;
constexpr int32_t unticked = 1;

}  // namespace

int32_t tx_bool_to_3state(bool on) { return on ? ticked : unticked; }
