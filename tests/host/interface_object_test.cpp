// The host's objects answer an interface by its exact versioned name: not a name that is a part
// of one they answer, nor one that extends it (asking for version 20 is not asking for 2).
#include "tx_host/services/interface_object.h"

#include <gtest/gtest.h>

#include <array>

namespace tx::host {
namespace {

// Two tables of one slot, the root, told apart by their addresses.
struct root_only {
  tx_root_fn root;
};
constexpr root_only kTwo{&root_slot};
constexpr root_only kTwenty{&root_slot};

// Answers tx_sample_interface_2 and tx_sample_interface_20, each with a table of its own.
class sample final : public interface_object {
 public:
  std::span<const interface_entry> interfaces() const noexcept override { return entries_; }

 private:
  std::array<interface_entry, 2> entries_{
      {{"tx_sample_interface_2", &kTwo}, {"tx_sample_interface_20", &kTwenty}}};
};

// Answers tx_other_interface_2 alone.
class other final : public interface_object {
 public:
  std::span<const interface_entry> interfaces() const noexcept override { return entries_; }

 private:
  std::array<interface_entry, 1> entries_{{{"tx_other_interface_2", &kTwo}}};
};

TEST(InterfaceObject, AnswersOnlyTheExactName) {
  sample both;
  other one;
  struct row {
    interface_object* object;
    const char* name;
    const void* table;  // null: not answered
  };
  const row rows[] = {
      {&both, "tx_sample_interface_2", &kTwo},     {&both, "tx_sample_interface_20", &kTwenty},
      {&both, "tx_sample_interface_200", nullptr}, {&both, "tx_sample_interface_", nullptr},
      {&both, "tx_sample_interface_3", nullptr},   {&both, "", nullptr},
      {&one, "tx_other_interface_2", &kTwo},       {&one, "tx_other_interface_20", nullptr},
      {&one, "tx_other_interface_21", nullptr},    {&one, "tx_other_interface_", nullptr},
      {&one, "TX_OTHER_INTERFACE_2", nullptr},
  };
  for (const row& r : rows) {
    const tx_custom_pointer direct = r.object->query(r.name);
    EXPECT_EQ(direct.table, r.table) << r.name;
    EXPECT_EQ(direct.object, r.table != nullptr ? r.object->object_half() : nullptr) << r.name;
    // Asked through the root of any pair of the object, as a plug-in asks.
    const tx_custom_pointer any{&kTwo, r.object->object_half()};
    EXPECT_TRUE(same(query(any, r.name), direct)) << r.name;
  }
}

}  // namespace
}  // namespace tx::host
