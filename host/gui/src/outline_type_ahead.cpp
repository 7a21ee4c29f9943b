// Typing a name's first letters in the outline's list goes to the next shown row whose first
// text starts so, as in any list; letters are compared without case, as Windows maps it.
#include "outline_control.h"

namespace tx::host::gui {

LRESULT outline_control::find_typed(const NMLVFINDITEMW& find) const {
  constexpr LRESULT kNotFound = -1;
  if ((find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || find.lvfi.psz == nullptr ||
      rows_.size() == 0) {
    return kNotFound;
  }
  std::wstring typed(find.lvfi.psz);
  if (typed.empty()) return kNotFound;
  CharLowerBuffW(typed.data(), static_cast<DWORD>(typed.size()));
  const std::size_t count = rows_.size();
  const std::size_t start = find.iStart >= 0 ? static_cast<std::size_t>(find.iStart) % count : 0;
  for (std::size_t n = 0; n < count; ++n) {
    const std::size_t i = (start + n) % count;
    std::u16string text = cell(0, rows_[i].row);
    if (text.size() < typed.size()) continue;
    text.resize(typed.size());
    auto* letters = reinterpret_cast<wchar_t*>(text.data());
    CharLowerBuffW(letters, static_cast<DWORD>(text.size()));
    if (std::wstring_view(letters, text.size()) == typed) return static_cast<LRESULT>(i);
  }
  return kNotFound;
}

}  // namespace tx::host::gui
