// tx::prjrename_find_replace: replaces occurrences of a search text by a replacement text.
#pragma once

#include <memory>

#include "rename/find_replace_rule.h"
#include "rename/operation.h"
#include "toolkit/assisted_input.h"
#include "toolkit/checkbox.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/labeled_element.h"

namespace tx {

class prjrename_find_replace final : public prjrename_operation {
 public:
  using replace_mode = rename::replace_mode;

  // Its settings: search and replacement texts with histories, match case, whole word, mode.
  struct panel {
    panel();
    toolkit::detail::labeled_element<toolkit::assisted_input> search{151};
    toolkit::detail::labeled_element<toolkit::assisted_input> replacement{152};
    toolkit::checkbox match_case{153};
    toolkit::checkbox whole_word{154};
    toolkit::detail::labeled_element<toolkit::dropdownex<replace_mode>> mode{160};
    toolkit::grid_span_layout<4, 2> layout;
  };

  prjrename_find_replace();

  custom_pointer element() override { return panel_->layout.pointer(); }
  void remember() override;
  bool apply(const std::u16string& name, std::u16string& result) override;
  void reset() override;
  bool is_idle() override { return panel_->search.value().empty(); }

  panel& settings() noexcept { return *panel_; }

 private:
  std::unique_ptr<panel> panel_;
};

}  // namespace tx
