// The host's service registry (tx_service_registry_interface_0): the services a plug-in can
// find by namespace key. It owns the test localizer, which is filed under
// TX_LOCALIZER_NAMESPACE_KEY only while switched on; it must outlive every plug-in it served,
// since a plug-in keeps the localizer for as long as it is loaded.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tx_host/services/interface_object.h"
#include "tx_host/services/localizer_service.h"
#include "tx_host/services/recording_localizer.h"

namespace tx::host {

class service_registry final : public interface_object {
 public:
  service_registry() = default;

  // The registry pair handed to a plug-in's factories.
  tx_custom_pointer pair() noexcept;

  // Files `service` under `key`, replacing what was there; a null pair removes the key. The
  // service is borrowed: the caller keeps it alive while it is filed.
  void set_service(std::u16string key, tx_custom_pointer service);

  // Switches the localizer under TX_LOCALIZER_NAMESPACE_KEY on or off (off at construction).
  // A localizer already handed out stays valid either way.
  void set_localizer_enabled(bool enabled) noexcept { localizer_enabled_ = enabled; }
  bool localizer_enabled() const noexcept { return localizer_enabled_; }
  // Files `localizer` (a tx_localizer_interface_1 pair, borrowed: it must outlive every plug-in
  // it serves) under TX_LOCALIZER_NAMESPACE_KEY in place of the test localizer, switched on.
  void offer_localizer(tx_custom_pointer localizer) noexcept {
    localizer_service_.hand_out(localizer);
    localizer_enabled_ = true;
  }
  // The localizer and the service that hands it out, whether switched on or not.
  recording_localizer& localizer() noexcept { return localizer_; }
  const localizer_service& localizer_entry() const noexcept { return localizer_service_; }

  // Records `key`, then calls `visitor` once with the service filed under it: the localizer
  // service through tx_localizer_service_visitor_interface_1 when the visitor answers it, any
  // other through tx_service_registry_visitor_interface_0; nothing when no service is filed,
  // or when the visitor is a null pair.
  void visit_service(const char16_t* key, tx_custom_pointer visitor);

  // The keys asked for, oldest first.
  const std::vector<std::u16string>& requested_keys() const noexcept { return requested_keys_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  recording_localizer localizer_;
  localizer_service localizer_service_{localizer_};
  bool localizer_enabled_ = false;
  std::map<std::u16string, tx_custom_pointer> services_;
  std::vector<std::u16string> requested_keys_;
};

}  // namespace tx::host
