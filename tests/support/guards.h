// Process-wide settings a test changes for its own length: the host's language and the
// localizer the plug-in keeps.
#pragma once

#include <cstdint>

#include "plugin/localizer.h"
#include "tx_host/basic.h"

namespace tx::test {

inline constexpr std::int32_t russian = 0;
inline constexpr std::int32_t english = 50000;

// The host's language for the length of a test; Russian again afterwards.
class language_guard {
 public:
  explicit language_guard(std::int32_t offset) { tx_host_set_lng(offset); }
  language_guard(const language_guard&) = delete;
  language_guard& operator=(const language_guard&) = delete;
  ~language_guard() { tx_host_set_lng(russian); }
};

// The plug-in's localizer for the length of a test; none afterwards.
class localizer_guard {
 public:
  explicit localizer_guard(custom_pointer localizer) { set_localizer(localizer); }
  localizer_guard(const localizer_guard&) = delete;
  localizer_guard& operator=(const localizer_guard&) = delete;
  ~localizer_guard() { set_localizer({}); }
};

}  // namespace tx::test
