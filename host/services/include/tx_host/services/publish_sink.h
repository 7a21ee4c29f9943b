// Where a plug-in's bundle and factories publish to: one host object answering
// tx_service_visitor_interface_0 (the factories the bundle lists),
// tx_utility_service_visitor_interface_2 and tx_modal_dialog_service_visitor_interface_102
// (the services a factory publishes). The host holds each published service by attaching a
// host_referrer to it while it is being published, as a service pair is valid only during the
// call otherwise. A plug-in may keep the sink's pairs until it is unloaded: the sink outlives it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tx_host/services/host_referrer.h"
#include "tx_host/services/interface_object.h"

namespace tx::host {

// A factory as the bundle listed it: its namespace key and its tx_service_factory_table pair
// (valid while the plug-in is loaded).
struct published_factory {
  std::u16string key;
  tx_custom_pointer factory;
};

class publish_sink final : public interface_object {
 public:
  publish_sink() = default;
  // Releases every service still held.
  ~publish_sink() override = default;

  // The tx_service_visitor_interface_0 pair: handed to the bundle and to every factory visit.
  tx_custom_pointer service_visitor() noexcept;

  // Records a factory (a null key counts as empty; a null pair is ignored).
  void visit_factory(const char16_t* key, tx_custom_pointer factory);
  // Holds a published tx_utility_service_interface_2; one without a referent cannot be held
  // beyond the call and is ignored.
  void visit_utility_service(tx_custom_pointer service);
  // Holds a published tx_modal_dialog_service_interface_102, as for utility services.
  void visit_dialog_service(tx_custom_pointer service);

  const std::vector<published_factory>& factories() const noexcept { return factories_; }
  // The services still held, in order of publication.
  std::vector<tx_custom_pointer> utility_services() const;
  std::vector<tx_custom_pointer> dialog_services() const;
  // The hold on each published service (tests look at the referrer pairs).
  const std::vector<std::unique_ptr<host_referrer>>& utility_holds() const noexcept {
    return utility_services_;
  }
  const std::vector<std::unique_ptr<host_referrer>>& dialog_holds() const noexcept {
    return dialog_services_;
  }

  // Detaches from every held service and forgets everything published.
  void release_all();

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  std::vector<published_factory> factories_;
  std::vector<std::unique_ptr<host_referrer>> utility_services_;
  std::vector<std::unique_ptr<host_referrer>> dialog_services_;
};

}  // namespace tx::host
