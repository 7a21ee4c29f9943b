// The localizer the reference host offers when a test switches it on
// (tx_localizer_interface_1). Its strings are recognisable rather than real: reference N > 0
// reads "localized:N". It has no text data and no bitmaps. Every question is recorded.
#pragma once

#include <cstdint>
#include <vector>

#include "tx_host/services/interface_object.h"

namespace tx::host {

struct localizer_request {
  enum class kind { string, text_data, bitmap };
  kind what;
  std::int32_t reference;

  bool operator==(const localizer_request&) const = default;
};

class recording_localizer final : public interface_object {
 public:
  recording_localizer() = default;

  tx_custom_pointer pair() noexcept;

  // For a reference above 0, hands "localized:<reference>" to `visitor` (a
  // tx_string_visitor_interface_0; a null pair is skipped) and answers true; false otherwise.
  bool load_string(std::int32_t reference, tx_custom_pointer visitor);
  // No text data: always false, nothing visited.
  bool load_text_data(std::int32_t reference, tx_custom_pointer visitor, std::uint32_t code_page);
  // No bitmaps: always false, nothing visited.
  bool load_bitmap(std::int32_t reference, tx_custom_pointer visitor);

  // Every question asked, oldest first.
  const std::vector<localizer_request>& requests() const noexcept { return requests_; }
  void clear_requests() noexcept { requests_.clear(); }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  std::vector<localizer_request> requests_;
};

}  // namespace tx::host
