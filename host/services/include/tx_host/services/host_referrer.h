// The host's hold on one service a plug-in published (tx_referrer_interface_1). Attached to the
// service's referent, it answers "still holding" until the host releases it. When the plug-in
// destroys the referent first, it forgets the service and never detaches.
#pragma once

#include "tx_host/services/interface_object.h"

namespace tx::host {

class host_referrer final : public interface_object {
 public:
  // `service`: the published pair; `referent`: its tx_referent_interface_1 pair. Nothing is
  // held until attach().
  host_referrer(tx_custom_pointer service, tx_custom_pointer referent) noexcept
      : service_(service), referent_(referent) {}
  // Releases what is still held.
  ~host_referrer() override;

  // This referrer's pair, as the referent keeps it.
  tx_custom_pointer pair() noexcept;

  // Attaches to the referent and holds the service; false (nothing held) when either pair is
  // absent.
  bool attach();
  // Detaches from the referent if still holding; the referent may be destroyed in the call.
  void release();

  bool holding() const noexcept { return holding_; }
  // The held service pair; a null pair once released or forgotten.
  tx_custom_pointer service() const noexcept { return holding_ ? service_ : tx_custom_pointer{}; }

  // The referent is being destroyed: forget it without detaching.
  void released(tx_custom_pointer referent) noexcept;
  // Whether this referrer still holds `referent` (only the one it attached to).
  bool holds(tx_custom_pointer referent) const noexcept;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  bool is_mine(tx_custom_pointer referent) const noexcept {
    return referent.object == referent_.object;
  }

  tx_custom_pointer service_;
  tx_custom_pointer referent_;
  bool holding_ = false;
};

}  // namespace tx::host
