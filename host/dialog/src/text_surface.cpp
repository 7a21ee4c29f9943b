#include "tx_host/dialog/dialog_surface.h"

namespace tx::host::dialog {

text_surface::text_surface(tx_custom_pointer docker, tx_custom_pointer buttons,
                           std::int32_t language_offset)
    : docker_(docker), driver_(docker, buttons, language_offset) {
  views_.attach(docker);
}

}  // namespace tx::host::dialog
