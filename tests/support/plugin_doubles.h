// The plug-in's half of the SDK interfaces, for the host's tests and the fake plug-in: a
// localizer client and a published service with its referent, recording what the host did.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "host_doubles.h"
#include "tx/modal_dialog.h"
#include "tx/services.h"
#include "tx/utility.h"

namespace tx::test {

// A tx_localizer_client_interface_0 naming `module`.
struct localizer_client : recorder<localizer_client> {
  std::u16string module;
  static constexpr tx_localizer_client_interface_0 table{
      &no_interfaces, [](void* s) { return self(s).module.c_str(); }};
};

// A published service: one object answering tx_utility_service_interface_2 (visiting `command`
// under `command_id`, when set) and tx_modal_dialog_service_interface_102 (no dialogs), with a
// referent unless made without one. The referent keeps its referrers as a plug-in does: a
// detach removes the entry and asks the others whether one still holds it. The plug-in's own
// hold keeps the service alive, so no detach destroys it.
struct plugin_service {
  bool with_referent = true;
  const char16_t* command_id = u"";
  tx_custom_pointer command{};
  std::vector<tx_custom_pointer> referrers{};
  std::size_t detaches = 0;
  std::size_t holders_at_last_detach = 0;

  tx_custom_pointer utility_pair() { return {&utility_table, this}; }
  tx_custom_pointer dialog_pair() { return {&dialog_table, this}; }
  tx_custom_pointer referent_pair() {
    return with_referent ? tx_custom_pointer{&referent_table, this} : tx_custom_pointer{};
  }

  // Asks each referrer whether it holds this referent.
  std::vector<bool> ask_holds() {
    std::vector<bool> answers;
    const std::vector<tx_custom_pointer> asked = referrers;
    for (const tx_custom_pointer& r : asked) {
      answers.push_back(ops<tx_referrer_interface_1>(r).holds(r.object, referent_pair()));
    }
    return answers;
  }
  // Plays the plug-in destroying the service: tells every referrer, empties the list.
  void destroy() {
    for (const tx_custom_pointer& r : std::exchange(referrers, {})) {
      ops<tx_referrer_interface_1>(r).released(r.object, referent_pair());
    }
  }

  static plugin_service& self(void* s) { return *static_cast<plugin_service*>(s); }
  static tx_custom_pointer referent(void* s) { return self(s).referent_pair(); }
  static void detach(void* s, tx_custom_pointer referrer) {
    plugin_service& service = self(s);
    ++service.detaches;
    const auto it = std::find_if(service.referrers.begin(), service.referrers.end(), [&](auto r) {
      return r.table == referrer.table && r.object == referrer.object;
    });
    if (it != service.referrers.end()) service.referrers.erase(it);
    const std::vector<bool> answers = service.ask_holds();
    service.holders_at_last_detach =
        static_cast<std::size_t>(std::count(answers.begin(), answers.end(), true));
  }

  static constexpr tx_referent_interface_1 referent_table{
      &no_interfaces,
      [](void* s, tx_custom_pointer referrer) {
        self(s).referrers.push_back(referrer);
        return self(s).referrers.size();
      },
      &detach, [](void* s) { return self(s).utility_pair(); },
      [](void* s, std::size_t index) {
        const auto& referrers = self(s).referrers;
        return index < referrers.size() ? referrers[index] : tx_custom_pointer{};
      }};
  static constexpr tx_utility_service_interface_2 utility_table{
      &no_interfaces, &referent, [](void* s, tx_custom_pointer visitor) {
        if (self(s).command.table == nullptr || visitor.table == nullptr) return;
        ops<tx_utility_visitor_interface_2>(visitor).visit(visitor.object, self(s).command_id,
                                                           self(s).command);
      }};
  static constexpr tx_modal_dialog_service_interface_102 dialog_table{
      &no_interfaces, &referent, [](void*, tx_custom_pointer) {}};
};

}  // namespace tx::test
