#include "element/operations_panel.h"

#include "element/project_rename_widget.h"

namespace tx::element {
namespace {

// "Тип" / "Type": the selector's caption.
constexpr std::int32_t selector_caption = 126;

}  // namespace

prjrename_operations::prjrename_operations(project_rename_widget& owner)
    : owner_(owner), selector_(selector_caption) {
  build_selector();
  place_panels();
  selection_ = selector_.changed.connect([this] {
    const std::int32_t chosen = selector_.selection();
    if (chosen < 0) return;
    owner_.operations.shown = static_cast<std::uint32_t>(chosen);
    refresh();
  });
}

void prjrename_operations::build_selector() {
  for (const auto& operation : owner_.operations.operations()) {
    selector_.add_item(static_cast<std::int32_t>(operation->title_id()));
  }
  selector_.set_selection(static_cast<std::int32_t>(owner_.operations.shown));
}

void prjrename_operations::place_panels() {
  stack_.add(panels_.pointer());
  for (const auto& operation : owner_.operations.operations()) {
    const custom_pointer panel = operation->element();
    panels_.place(panel);  // an absent panel still takes its cell
    stack_.add(panel);
  }
  layout_.place_spanning(selector_.pointer());
  layout_.place_spanning(stack_.pointer());
  refresh();
}

void prjrename_operations::refresh() noexcept {
  stack_.set_shown(static_cast<std::int32_t>(owner_.operations.shown) + 1);
}

}  // namespace tx::element
