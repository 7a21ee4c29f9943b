#include "rename/insert_rule.h"

namespace tx::rename {

bool insert_text(std::u16string_view name, const insert_settings& settings,
                 std::u16string& result) {
  if (settings.text.empty()) {
    result.assign(name);
    return false;
  }
  switch (settings.mode) {
    case insert_mode::begin:
      result.assign(settings.text).append(name);
      return true;
    case insert_mode::end:
      result.assign(name).append(settings.text);
      return true;
  }
  result.assign(name);
  return false;
}

}  // namespace tx::rename
