// A host string visitor (tx_string_visitor_interface_0): keeps the text it is handed, for
// captions and localized strings read from a plug-in.
#pragma once

#include <cstddef>
#include <string>

#include "tx_host/services/interface_object.h"

namespace tx::host {

class string_collector final : public interface_object {
 public:
  string_collector() = default;

  // The visitor pair to hand to the plug-in.
  tx_custom_pointer pair() noexcept;

  // Keeps a copy of `text` (a null text counts as empty), replacing the previous one.
  void visit(const char16_t* text);

  // The last text visited; empty before the first visit.
  const std::u16string& text() const noexcept { return text_; }
  std::size_t visits() const noexcept { return visits_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  std::u16string text_;
  std::size_t visits_ = 0;
};

}  // namespace tx::host
