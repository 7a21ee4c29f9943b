// What the list shows of each row, asked when it draws: the texts, the indentation, the tick box
// and the expander, and how a cell looks (bold when emphasized, red when the row is faulty).
#include <algorithm>

#include "outline_control.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::gui {
namespace {

// A faulty row's text: the red Windows uses for errors, dark enough to read on white.
constexpr COLORREF kFaultyText = RGB(200, 0, 0);

}  // namespace

std::u16string outline_control::cell(std::size_t column, tx_custom_pointer row) const {
  return reader_.wide_cell(column, row).value_or(u"");
}

void outline_control::fill_item(LVITEMW& item) const {
  if (item.iItem < 0 || static_cast<std::size_t>(item.iItem) >= rows_.size()) return;
  const window_logic::visible_row& shown = rows_[static_cast<std::size_t>(item.iItem)];
  const std::size_t column = static_cast<std::size_t>(std::max(item.iSubItem, 0));
  if ((item.mask & LVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0) {
    const std::u16string text = cell(column, shown.row);
    const std::size_t n = std::min<std::size_t>(text.size(), item.cchTextMax - 1);
    std::copy_n(text.begin(), n, item.pszText);
    item.pszText[n] = L'\0';
  }
  if (item.iSubItem != 0) return;
  if ((item.mask & LVIF_INDENT) != 0) item.iIndent = shown.depth;
  if ((item.mask & LVIF_IMAGE) != 0) {
    item.iImage = present(reader_.checks())
                      ? box_image(reader_.checked(shown.row), reader_.check_enabled(shown.row))
                      : I_IMAGENONE;
  }
  if ((item.mask & LVIF_STATE) != 0 && (item.stateMask & LVIS_STATEIMAGEMASK) != 0) {
    item.state = (item.state & ~LVIS_STATEIMAGEMASK) |
                 state_image_bits(expander_image(reader_.expander(shown.row)));
  }
}

LRESULT outline_control::custom_draw(NMLVCUSTOMDRAW& draw) const {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      return CDRF_NOTIFYSUBITEMDRAW | CDRF_NOTIFYPOSTPAINT;
    case CDDS_ITEMPOSTPAINT: {
      // The list blends the small image of a selected row with the highlight; a tick box is
      // drawn again as it is, like a check box on a selected row.
      const std::size_t position = draw.nmcd.dwItemSpec;
      if (!present(reader_.checks()) || position >= rows_.size() ||
          SendMessageW(list(), LVM_GETITEMSTATE, position, LVIS_SELECTED) == 0) {
        return CDRF_DODEFAULT;
      }
      RECT icon{LVIR_ICON, 0, 0, 0};
      if (SendMessageW(list(), LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&icon))) {
        const tx_custom_pointer row = rows_[position].row;
        ImageList_Draw(images_.boxes(), box_image(reader_.checked(row), reader_.check_enabled(row)),
                       draw.nmcd.hdc, icon.left, icon.top, ILD_NORMAL);
      }
      return CDRF_DODEFAULT;
    }
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      const std::size_t position = draw.nmcd.dwItemSpec;
      if (position >= rows_.size()) return CDRF_DODEFAULT;
      const tx_custom_pointer row = rows_[position].row;
      const std::size_t column = static_cast<std::size_t>(std::max(draw.iSubItem, 0));
      SelectObject(draw.nmcd.hdc, reader_.emphasized(column, row) ? bold_font_ : font_);
      draw.clrText = reader_.faulty(row) ? kFaultyText : CLR_DEFAULT;
      return CDRF_NEWFONT;
    }
    default:
      return CDRF_DODEFAULT;
  }
}

}  // namespace tx::host::gui
