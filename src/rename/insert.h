// tx::prjrename_insert: adds a text at the beginning or the end of the name.
#pragma once

#include <memory>

#include "rename/insert_rule.h"
#include "rename/operation.h"
#include "toolkit/assisted_input.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/labeled_element.h"

namespace tx {

class prjrename_insert final : public prjrename_operation {
 public:
  using insert_mode = rename::insert_mode;

  // Its settings: the text with its history, and where it goes.
  struct panel {
    panel();
    toolkit::detail::labeled_element<toolkit::assisted_input> text{201};
    toolkit::dropdownex<insert_mode> position;
    toolkit::grid_layout<2, 1> layout;
  };

  prjrename_insert();

  custom_pointer element() override { return panel_->layout.pointer(); }
  void remember() override;
  bool apply(const std::u16string& name, std::u16string& result) override;
  void reset() override { panel_->text.assign_text(u""); }
  bool is_idle() override { return panel_->text.value().empty(); }

  panel& settings() noexcept { return *panel_; }

 private:
  std::unique_ptr<panel> panel_;
};

}  // namespace tx
