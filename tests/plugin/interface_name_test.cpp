// The plug-in's objects answer an interface by its exact versioned name, through the root a host
// asks: not a name that extends one of theirs (version 20 is not version 2), nor one that a name
// of theirs extends, nor one that differs in case.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host_doubles.h"
#include "plugin/referent.h"
#include "plugin/utility_service.h"
#include "toolkit/checkbox.h"

namespace tx {
namespace {

// A referent whose principal interface is the utility service: it answers two names.
class two_names final : public referent<utility_service_impl> {
 public:
  custom_pointer referent() override { return referent_pointer(); }
  void visit_utilities(custom_pointer) override {}
};

// Names near `own` that are not it.
std::vector<std::string> near_misses(const std::string& own) {
  std::string upper = own;
  for (char& c : upper) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  std::string next_version = own;
  ++next_version.back();
  return {own + "0", own + "1", own + " ", own.substr(0, own.size() - 1), next_version, upper, ""};
}

TEST(InterfaceName, AnObjectAnswersExactlyTheNamesItImplements) {
  toolkit::checkbox box;
  const auto service = std::make_unique<two_names>();
  struct object {
    tx_custom_pointer any;  // any pair of the object
    std::vector<std::pair<std::string, tx_custom_pointer>> answers;
  };
  const object objects[] = {
      {box.pointer(), {{TX_CHECKBOX_INTERFACE_2, box.pointer()}}},
      {service->referent_pointer(),
       {{TX_UTILITY_SERVICE_INTERFACE_2, service->principal()},
        {TX_REFERENT_INTERFACE_1, service->referent_pointer()}}},
  };
  for (const object& o : objects) {
    for (const auto& [name, pair] : o.answers) {
      EXPECT_TRUE(same(test::ask(o.any, name.c_str()), pair)) << name;
      for (const std::string& other : near_misses(name)) {
        EXPECT_TRUE(same(test::ask(o.any, other.c_str()), {})) << name << " asked as " << other;
      }
    }
  }
}

}  // namespace
}  // namespace tx
