// Captions read from the host through its string adapter, which fills a string the plug-in owns.
#pragma once

#include <string>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"

namespace tx {

namespace detail {
inline void assign_host_text(void* target, const char16_t* chars, std::size_t length) {
  static_cast<std::u16string*>(target)->assign(chars, length);
}
}  // namespace detail

// Calls `getter(handle, adapter)` with an adapter over a fresh string, and returns the string.
template <class Handle>
std::u16string host_caption(void (*getter)(Handle*, tx_string_adp*), Handle* handle) {
  std::u16string text;
  if (handle == nullptr) return text;
  tx_string_adp* adapter = tx_string_adp_create(&text, &detail::assign_host_text);
  if (adapter == nullptr) return text;
  getter(handle, adapter);
  tx_string_adp_destroy(adapter);
  return text;
}

// Reads the captions of many entities, one after the other, through one adapter over one
// string, so that a loop over a whole project allocates nothing once the string has grown.
class host_caption_reader {
 public:
  host_caption_reader() = default;
  host_caption_reader(const host_caption_reader&) = delete;
  host_caption_reader& operator=(const host_caption_reader&) = delete;
  ~host_caption_reader() {
    if (adapter_ != nullptr) tx_string_adp_destroy(adapter_);
  }

  // The entity's caption (empty when the host gives no adapter), valid until the next read.
  const std::u16string& read(tx_entity* entity) {
    text_.clear();
    if (adapter_ == nullptr) adapter_ = tx_string_adp_create(&text_, &detail::assign_host_text);
    if (adapter_ != nullptr) tx_entity_get_wcaption(entity, adapter_);
    return text_;
  }

 private:
  std::u16string text_;
  tx_string_adp* adapter_ = nullptr;  // made at the first read, owned
};

}  // namespace tx
