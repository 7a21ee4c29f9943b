#include "resources/warning.h"

#include "resources/loader.h"
#include "tx/host/txk_msgs.h"

namespace tx {

void show_warning(std::int32_t id) {
  const std::u16string text = resource::string(id).value_or(u"");
  tx_show_wwarning(text.c_str());
}

}  // namespace tx
