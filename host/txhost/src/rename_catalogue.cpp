#include "rename_catalogue.h"

#include <cstdint>

namespace tx::host {
namespace {

// The plug-in's string table: TX_STRING(id, id + 50000, Russian, English).
#define TX_STRING(id, id_en, ru, en) catalogue_string{id, u"" ru}, catalogue_string{id_en, u"" en},
constexpr catalogue_string kStrings[] = {
#include "strings.inc"
};
#undef TX_STRING

// bitmap_ID arrays and kBitmaps, generated from the plug-in's .rc (host/txhost/CMakeLists.txt).
#include "rename_bitmaps.inc"

}  // namespace

std::span<const catalogue_string> rename_strings() noexcept { return kStrings; }

std::span<const catalogue_bitmap> rename_bitmaps() noexcept { return kBitmaps; }

}  // namespace tx::host
