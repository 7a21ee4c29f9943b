// The plug-in's localized texts and images, by resource reference: from the host's localizer
// when the host offers one (for the plug-in's own, positive references), otherwise from the
// plug-in's own resources (reference > 0) or the host's basic library (reference ≤ 0, resource
// −reference). Nothing is cached: every call resolves afresh, so a change of the host's
// language shows on the next load. Nothing throws; a missing resource is reported, not shown.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "plugin/interface.h"

namespace tx::resource {

// Calls the tx_string_visitor_interface_0 `visitor` once with the string of `reference` in the
// host's language (in Russian when that language has none). Returns whether it was found, true
// also when the visitor pair is null and nothing is called.
bool load_string(std::int32_t reference, custom_pointer visitor) noexcept;

// As load_string, for text data (resource type 260) held in the multi-byte `code_page`.
bool load_text_data(std::int32_t reference, custom_pointer visitor,
                    std::uint32_t code_page) noexcept;

// Hands bitmap `reference` to the tx_thrice_interleaved_bytes_visitor_interface_0 `visitor`:
// 3 channels of blue, green, red in 4-byte pixels, top row first or, with `stored_order`,
// bottom row first. Returns whether found; a missing bitmap calls nothing.
bool load_bitmap(std::int32_t reference, custom_pointer visitor,
                 bool stored_order = false) noexcept;

// Builds the masked bitmap of icon (or cursor) `reference` and hands its
// tx_masked_bitmap_interface_0 pair, valid during the call, to the
// tx_masked_bitmap_visitor_interface_0 `visitor`; an image that cannot be read is handed over
// empty. Returns whether it was read.
bool load_masked_bitmap(std::int32_t reference, custom_pointer visitor) noexcept;

// The string of `reference`, for the plug-in's own use; nothing when it is not found.
std::optional<std::u16string> string(std::int32_t reference);

}  // namespace tx::resource
