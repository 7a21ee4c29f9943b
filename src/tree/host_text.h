// Captions read from the host through its string adapter, which fills a string the plug-in owns.
#pragma once

#include <string>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"

namespace tx {

// Calls `getter(handle, adapter)` with an adapter over a fresh string, and returns the string.
template <class Handle>
std::u16string host_caption(void (*getter)(Handle*, tx_string_adp*), Handle* handle) {
  std::u16string text;
  if (handle == nullptr) return text;
  tx_string_adp* adapter =
      tx_string_adp_create(&text, [](void* target, const char16_t* chars, std::size_t length) {
        static_cast<std::u16string*>(target)->assign(chars, length);
      });
  if (adapter == nullptr) return text;
  getter(handle, adapter);
  tx_string_adp_destroy(adapter);
  return text;
}

}  // namespace tx
