#include "tx_host/dialog/button_reader.h"

#include <algorithm>

#include "tx/toolkit/button_box.h"
#include "tx_host/dialog/elements.h"

namespace tx::host::dialog {

std::vector<button_entry> buttons_of(tx_custom_pointer box) {
  using table = tx_button_box_interface_2;
  // More buttons than any dialog has: a box reporting an absurd count is read this far.
  const std::int32_t count = std::clamp(call(box, &table::button_count), 0, 64);
  std::vector<button_entry> buttons;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> caption = collect_text(
        [&](tx_custom_pointer visitor) { return call(box, &table::caption, i, visitor); });
    buttons.push_back({i, caption.value_or(""), call(box, &table::shown, i)});
  }
  return buttons;
}

}  // namespace tx::host::dialog
