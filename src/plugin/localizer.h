// The host's localizer as the plug-in keeps it: set when the host's service registry hands it
// over (the client factory's visit), read by the resource loader for every positive reference.
#pragma once

#include "plugin/interface.h"
#include "tx/services.h"

namespace tx {

template <>
struct interface_traits<tx_localizer_interface_1> {
  static constexpr const char* name = TX_LOCALIZER_INTERFACE_1;
};

// The localizer pair (a tx_localizer_interface_1), or a null pair when the host has none.
custom_pointer localizer() noexcept;
// Replaces the kept localizer; a null pair forgets it.
void set_localizer(custom_pointer localizer) noexcept;

}  // namespace tx
