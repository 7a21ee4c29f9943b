// A host utility visitor (tx_utility_visitor_interface_2): lists the commands a utility
// service visits it with.
#pragma once

#include <vector>

#include "tx_host/services/interface_object.h"
#include "tx_host/services/utility_command.h"

namespace tx::host {

class utility_collector final : public interface_object {
 public:
  utility_collector() = default;

  tx_custom_pointer pair() noexcept;

  // Appends the command (a null id counts as empty; a null pair is ignored).
  void visit(const char16_t* id, tx_custom_pointer utility);

  const std::vector<utility_command>& commands() const noexcept { return commands_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  std::vector<utility_command> commands_;
};

}  // namespace tx::host
