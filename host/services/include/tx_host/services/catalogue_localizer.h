// The host's localizer (tx_localizer_interface_1): it answers a plug-in's texts and pictures
// from catalogues the host keeps for the plug-ins it knows. A string is looked up at its id plus
// the interface language's offset and, when missing there, at its id (Russian), as a plug-in's
// own resources are; a picture is a .bmp file (24 bits a pixel, uncompressed) handed over top
// row first. References of 0 or less (the host's basic library's) and text data are not its.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "tx_host/services/interface_object.h"

namespace tx::host {

struct catalogue_string {
  std::int32_t id;
  std::u16string_view text;  // NUL-terminated in memory
};

struct catalogue_bitmap {
  std::int32_t id;
  std::span<const std::uint8_t> file;  // a whole .bmp file
};

class catalogue_localizer final : public interface_object {
 public:
  // The catalogues are borrowed and must outlive the localizer.
  catalogue_localizer(std::span<const catalogue_string> strings,
                      std::span<const catalogue_bitmap> bitmaps, std::int32_t language_offset)
      : strings_(strings), bitmaps_(bitmaps), language_(language_offset) {}

  tx_custom_pointer pair() noexcept;

  // The string of `reference` (> 0) to `visitor` (a tx_string_visitor_interface_0; a null pair
  // is skipped); whether it was found.
  bool load_string(std::int32_t reference, tx_custom_pointer visitor) const;
  // The bitmap of `reference` (> 0) to `visitor` (a
  // tx_thrice_interleaved_bytes_visitor_interface_0; a null pair is skipped); whether it was
  // found and readable.
  bool load_bitmap(std::int32_t reference, tx_custom_pointer visitor) const;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  const catalogue_string* find_string(std::int64_t id) const noexcept;

  std::span<const catalogue_string> strings_;
  std::span<const catalogue_bitmap> bitmaps_;
  std::int32_t language_;
};

}  // namespace tx::host
