// The dialog's rename operations in their fixed order (find and replace, case change, insert,
// erase), and the one whose settings are shown.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "rename/chain.h"
#include "rename/operation.h"

namespace tx {

class prjrename_operation_list {
 public:
  // Creates the four operations, find and replace shown.
  prjrename_operation_list();

  const std::vector<std::unique_ptr<prjrename_operation>>& operations() const noexcept {
    return operations_;
  }
  // The operations whose settings can change a name, in list order.
  std::vector<prjrename_operation*> active() const;

  // The operation whose panel is in view; it decides nothing about execution.
  std::uint32_t shown = 0;

 private:
  std::vector<std::unique_ptr<prjrename_operation>> operations_;
};

}  // namespace tx
