// Plug-in side stand-ins for the host's tests: small objects that implement the plug-in's half
// of an interface and record what the host did with them.
#pragma once

#include <string>
#include <vector>

#include "tx_host/services/interface_object.h"

namespace tx::host::testing {

// A tx_service_registry_visitor_interface_0 recording each visit.
class registry_visitor_double final : public interface_object {
 public:
  struct visit {
    std::u16string key;
    tx_custom_pointer service;
  };
  tx_custom_pointer pair() noexcept;
  std::vector<visit> visits;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
};

// A tx_localizer_service_visitor_interface_1 keeping each localizer handed over.
class localizer_visitor_double final : public interface_object {
 public:
  tx_custom_pointer pair() noexcept;
  std::vector<tx_custom_pointer> localizers;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
};

// A tx_localizer_client_interface_0 naming a module.
class client_double final : public interface_object {
 public:
  explicit client_double(std::u16string name) : module(std::move(name)) {}
  tx_custom_pointer pair() noexcept;
  std::u16string module;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
};

// A published service: answers tx_utility_service_interface_2 (one command, "cmd", captioned
// "caption"), tx_modal_dialog_service_interface_102 (no dialogs) and, unless made without
// one, tx_referent_interface_1. The referent keeps its referrers as a plug-in does: a detach
// removes the entry and asks the others whether one still holds it.
class service_double final : public interface_object {
 public:
  explicit service_double(bool with_referent = true) : with_referent_(with_referent) {}
  tx_custom_pointer utility_pair() noexcept;
  tx_custom_pointer dialog_pair() noexcept;
  tx_custom_pointer referent_pair() noexcept;

  std::size_t attach(tx_custom_pointer referrer);
  void detach(tx_custom_pointer referrer);
  // Plays the plug-in destroying the service: tells every referrer, empties the list.
  void destroy();
  // Asks each referrer whether it holds this referent.
  std::vector<bool> ask_holds();

  std::vector<tx_custom_pointer> referrers;
  std::size_t detaches = 0;
  // How many of the other referrers answered "still holding" in the last detach.
  std::size_t holders_at_last_detach = 0;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  bool with_referent_;
};

}  // namespace tx::host::testing
