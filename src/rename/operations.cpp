// The case change, insert and erase operations: their panels and how they read them.
#include "rename/case_change.h"
#include "rename/erase.h"
#include "rename/insert.h"

namespace tx {

prjrename_case_change::panel::panel() {
  mode.add_item(180, case_mode::unchanged);
  mode.add_item(177, case_mode::lower);
  mode.add_item(178, case_mode::upper);
  mode.add_item(179, case_mode::first_letter);
  mode.set_selection(0);
  layout.place(mode.pointer());
}

prjrename_case_change::prjrename_case_change()
    : prjrename_operation(175), panel_(std::make_unique<panel>()) {}

bool prjrename_case_change::apply(const std::u16string& name, std::u16string& result) {
  return rename::change_case(name, mode(), separators(), result);
}

prjrename_insert::panel::panel() {
  position.add_item(202, insert_mode::begin);
  position.add_item(203, insert_mode::end);
  position.set_selection(0);
  layout.place(text.pointer());
  layout.place(position.pointer());
}

prjrename_insert::prjrename_insert()
    : prjrename_operation(200), panel_(std::make_unique<panel>()) {}

void prjrename_insert::remember() {
  if (!panel_->text.value().empty()) panel_->text.remember(panel_->text.value());
}

bool prjrename_insert::apply(const std::u16string& name, std::u16string& result) {
  const rename::insert_settings settings{panel_->text.value(),
                                         panel_->position.value().value_or(insert_mode::begin)};
  return rename::insert_text(name, settings, result);
}

prjrename_erase::panel::panel() {
  for (const std::int32_t item : {229, 227, 228, 233, 234}) kind.add_item(item);
  kind.set_selection(4);
  side.add_item(231);
  side.add_item(232);
  side.set_selection(0);
  layout.place_next(kind.pointer());
  layout.place_next(count.pointer());
  layout.place_next(side.pointer());
  layout.place_next(characters.pointer());
  layout.place_next(match_case.pointer());
  layout.place_next(whole_word.pointer());
}

prjrename_erase::prjrename_erase() : prjrename_operation(225), panel_(std::make_unique<panel>()) {}

rename::erase_settings prjrename_erase::current() const noexcept {
  return {static_cast<erase_kind>(panel_->kind.selection()),
          panel_->count.current(),
          static_cast<erase_side>(panel_->side.selection()),
          panel_->characters.value(),
          panel_->match_case.is_checked(),
          panel_->whole_word.is_checked()};
}

void prjrename_erase::remember() {
  if (!panel_->characters.value().empty()) {
    panel_->characters.remember(panel_->characters.value());
  }
}

bool prjrename_erase::apply(const std::u16string& name, std::u16string& result) {
  return rename::erase(name, current(), separators(), result);
}

void prjrename_erase::reset() {
  panel_->kind.set_selection(-1);
  panel_->count.assign_value(0);
  panel_->characters.assign_text(u"");
  panel_->match_case.check(false);
  panel_->whole_word.check(false);
}

}  // namespace tx
