// The service filed under TX_LOCALIZER_NAMESPACE_KEY (tx_localizer_service_interface_1): hands
// its one localizer to whichever client asks, and records the module names of the clients.
#pragma once

#include <string>
#include <vector>

#include "tx_host/services/interface_object.h"
#include "tx_host/services/recording_localizer.h"

namespace tx::host {

class localizer_service final : public interface_object {
 public:
  // `localizer` is borrowed and must outlive this service and every plug-in it was handed to.
  explicit localizer_service(recording_localizer& localizer) : localizer_(localizer) {}

  tx_custom_pointer pair() noexcept;

  // Records the module name that `client` (tx_localizer_client_interface_0) reports (empty
  // when it has none), then hands the localizer to `visitor`
  // (tx_localizer_visitor_interface_1; a null pair is skipped).
  void visit_localizer(tx_custom_pointer client, tx_custom_pointer visitor);

  // Hands out `localizer` (a tx_localizer_interface_1 pair, borrowed: it must outlive every
  // plug-in it is handed to) instead of the recording one; a null pair: the recording one again.
  void hand_out(tx_custom_pointer localizer) noexcept { handed_out_ = localizer; }

  // The module names of the clients that asked, oldest first.
  const std::vector<std::u16string>& clients() const noexcept { return clients_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  recording_localizer& localizer_;
  tx_custom_pointer handed_out_{};
  std::vector<std::u16string> clients_;
};

}  // namespace tx::host
