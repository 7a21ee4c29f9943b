// tx::prjrename_case_change: changes the letter case of the whole name.
#pragma once

#include <memory>

#include "rename/case_change_rule.h"
#include "rename/operation.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/labeled_element.h"

namespace tx {

class prjrename_case_change final : public prjrename_operation {
 public:
  using case_mode = rename::case_mode;

  // Its one setting: the case mode, "no change" first and chosen at the start.
  struct panel {
    panel();
    toolkit::detail::labeled_element<toolkit::dropdownex<case_mode>> mode{176};
    toolkit::grid_layout<1, 1> layout;
  };

  prjrename_case_change();

  custom_pointer element() override { return panel_->layout.pointer(); }
  bool apply(const std::u16string& name, std::u16string& result) override;
  // Back to the first item, "no change".
  void reset() override { panel_->mode.set_selection(0); }
  bool is_idle() override { return rename::is_idle(mode()); }

  panel& settings() noexcept { return *panel_; }

 private:
  // The selected mode; with no item selected, lower case.
  case_mode mode() const noexcept { return panel_->mode.value().value_or(case_mode::lower); }

  std::unique_ptr<panel> panel_;
};

}  // namespace tx
