#include "tx_host/dialog/button_reader.h"

#include "tx/toolkit/button_box.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/limits.h"

namespace tx::host::dialog {

std::vector<button_entry> buttons_of(tx_custom_pointer box) {
  using table = tx_button_box_interface_2;
  const std::int32_t count = bounded_count(call(box, &table::button_count));
  std::vector<button_entry> buttons;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> caption = collect_text(
        [&](tx_custom_pointer visitor) { return call(box, &table::caption, i, visitor); });
    buttons.push_back({i, caption.value_or(""), call(box, &table::shown, i)});
  }
  return buttons;
}

}  // namespace tx::host::dialog
