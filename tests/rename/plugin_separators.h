// The separator set as the operations build it: from the plug-in's string 128, read from the
// resources linked into the test program.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "rename/separator_set.h"

namespace tx::rename::testing {

// String 128 as stored, without the NUL that the table counts.
inline std::u16string_view separator_string() {
  std::u16string_view stored = platform::stored_string(platform::own_module(), 128);
  if (!stored.empty() && stored.back() == u'\0') stored.remove_suffix(1);
  return stored;
}

inline const separator_set& plugin_separators() {
  static const separator_set set(separator_string());
  return set;
}

}  // namespace tx::rename::testing
