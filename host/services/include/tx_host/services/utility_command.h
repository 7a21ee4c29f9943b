// One command of a held utility service, as the host lists it.
#pragma once

#include <optional>
#include <string>

#include "tx/abi.h"

namespace tx::host {

struct utility_command {
  // The identifier the service visited the command with.
  std::u16string id;
  // The tx_utility_interface_4 pair; valid while the host holds the service that listed it.
  tx_custom_pointer command;

  // The caption the command hands to a string visitor; nullopt when it reports none.
  std::optional<std::u16string> caption() const;
};

}  // namespace tx::host
