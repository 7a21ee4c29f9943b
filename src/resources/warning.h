// Warnings by string id: the text of the id in the current interface language, shown in the
// host's warning box.
#pragma once

#include <cstdint>

namespace tx {

// String ids of the plug-in's warnings.
inline constexpr std::int32_t warning_no_new_names = 129;
inline constexpr std::int32_t warning_no_conditions = 130;
inline constexpr std::int32_t warning_nothing_selected = 131;
inline constexpr std::int32_t warning_empty_name = 132;

// Loads string `id` and hands it to the host's tx_show_wwarning (an empty text when the string
// is missing).
void show_warning(std::int32_t id);

}  // namespace tx
