// What the host's localizer holds for txk_project_rename: the plug-in's own string table and
// tool images, taken from the plug-in's resource sources when txhost is built, so that with the
// localizer offered the plug-in shows exactly what it would show from its own resources.
#pragma once

#include <span>

#include "tx_host/services/catalogue_localizer.h"

namespace tx::host {

std::span<const catalogue_string> rename_strings() noexcept;
std::span<const catalogue_bitmap> rename_bitmaps() noexcept;

}  // namespace tx::host
