// tx::prjrename_erase: removes part of the name: N characters at one end, everything before or
// after a character sequence, or the extension.
#pragma once

#include <memory>

#include "rename/erase_rule.h"
#include "rename/operation.h"
#include "toolkit/assisted_input.h"
#include "toolkit/checkbox.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/labeled_element.h"
#include "toolkit/numeric_input.h"

namespace tx {

class prjrename_erase final : public prjrename_operation {
 public:
  using erase_kind = rename::erase_kind;
  using erase_side = rename::erase_side;

  // Its settings: the kind (by index, "no change" chosen at the start), N, the side, the
  // characters with their history, match case and whole word.
  struct panel {
    panel();
    toolkit::detail::labeled_element<toolkit::dropdown> kind{226};
    toolkit::numeric_input<int> count{230};
    toolkit::dropdown side;
    toolkit::assisted_input characters;
    toolkit::checkbox match_case{235, 236};
    toolkit::checkbox whole_word{237, 238};
    toolkit::grid_span_layout<3, 2> layout;
  };

  prjrename_erase();

  custom_pointer element() override { return panel_->layout.pointer(); }
  void remember() override;
  bool apply(const std::u16string& name, std::u16string& result) override;
  void reset() override;
  bool is_idle() override { return rename::is_idle(current()); }

  panel& settings() noexcept { return *panel_; }

 private:
  // The settings as the panel shows them now; the characters view the input's text.
  rename::erase_settings current() const noexcept;

  std::unique_ptr<panel> panel_;
};

}  // namespace tx
