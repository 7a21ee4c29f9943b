// The list's notifications to the outline control: what to show (asked row by row), how to draw
// it, the selection changes the user made and the rows typed to.
#include "outline_control.h"

namespace tx::host::gui {
namespace {

bool selection_changed(UINT old_state, UINT new_state) noexcept {
  return ((old_state ^ new_state) & LVIS_SELECTED) != 0;
}

}  // namespace

bool outline_control::on_notify(const NMHDR& header, LRESULT& result) {
  if (header.hwndFrom != list()) return false;
  // The notifications carry their structures around the header.
  NMHDR& h = const_cast<NMHDR&>(header);
  result = 0;
  switch (header.code) {
    case LVN_GETDISPINFOW:
      fill_item(reinterpret_cast<NMLVDISPINFOW&>(h).item);
      return true;
    case NM_CUSTOMDRAW:
      result = custom_draw(reinterpret_cast<NMLVCUSTOMDRAW&>(h));
      return true;
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if (syncing_ || (change.uChanged & LVIF_STATE) == 0 ||
          !selection_changed(change.uOldState, change.uNewState)) {
        return true;
      }
      const bool on = (change.uNewState & LVIS_SELECTED) != 0;
      // Item -1: every item.
      if (change.iItem < 0) {
        if (rows_.size() > 0) handed_selection(0, rows_.size() - 1, on);
      } else {
        const auto at = static_cast<std::size_t>(change.iItem);
        handed_selection(at, at, on);
      }
      return true;
    }
    case LVN_ODSTATECHANGED: {
      const auto& change = reinterpret_cast<const NMLVODSTATECHANGE&>(header);
      if (!syncing_ && selection_changed(change.uOldState, change.uNewState) && change.iFrom >= 0 &&
          change.iTo >= change.iFrom) {
        handed_selection(static_cast<std::size_t>(change.iFrom),
                         static_cast<std::size_t>(change.iTo),
                         (change.uNewState & LVIS_SELECTED) != 0);
      }
      return true;
    }
    case LVN_ODFINDITEMW:
      result = find_typed(reinterpret_cast<const NMLVFINDITEMW&>(header));
      return true;
    default:
      return false;
  }
}

}  // namespace tx::host::gui
