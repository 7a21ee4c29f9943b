#include "rename/extension_rule.h"

namespace tx::rename {

std::u16string_view cut_extension(std::u16string_view name) noexcept {
  for (std::size_t i = name.size(); i-- > 0;) {
    const char16_t unit = name[i];
    if (unit == u'\\' || unit == u'/') break;
    if (unit == u'.') return i >= 1 ? name.substr(0, i) : name;
  }
  return name;
}

}  // namespace tx::rename
