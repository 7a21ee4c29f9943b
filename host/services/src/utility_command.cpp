#include "tx_host/services/utility_command.h"

#include "tx/utility.h"
#include "tx_host/services/string_collector.h"

namespace tx::host {

std::optional<std::u16string> utility_command::caption() const {
  string_collector collector;
  if (!call(command, &tx_utility_interface_4::caption, collector.pair())) return std::nullopt;
  return collector.text();
}

}  // namespace tx::host
