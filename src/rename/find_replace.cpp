#include "rename/find_replace.h"

namespace tx {

prjrename_find_replace::panel::panel() {
  mode.add_item(155, replace_mode::all);
  mode.add_item(156, replace_mode::first);
  mode.add_item(157, replace_mode::last);
  mode.add_item(158, replace_mode::all_except_first);
  mode.add_item(159, replace_mode::all_except_last);
  mode.set_selection(0);
  layout.place_spanning(search.pointer());
  layout.place_spanning(replacement.pointer());
  layout.place_next(match_case.pointer());
  layout.place_next(whole_word.pointer());
  layout.place_spanning(mode.pointer());
}

prjrename_find_replace::prjrename_find_replace()
    : prjrename_operation(150), panel_(std::make_unique<panel>()) {}

void prjrename_find_replace::remember() {
  if (panel_->search.value().empty()) return;
  panel_->search.remember(panel_->search.value());
  panel_->replacement.remember(panel_->replacement.value());
}

bool prjrename_find_replace::apply(const std::u16string& name, std::u16string& result) {
  const rename::find_replace_settings settings{
      panel_->search.value(), panel_->replacement.value(), panel_->match_case.is_checked(),
      panel_->whole_word.is_checked(), panel_->mode.value().value_or(replace_mode::all)};
  return rename::find_replace(name, settings, separators(), result);
}

void prjrename_find_replace::reset() {
  panel_->search.assign_text(u"");
  panel_->replacement.assign_text(u"");
}

}  // namespace tx
