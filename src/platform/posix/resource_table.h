// The resources of one module as the native build carries them. embed_resources.cmake generates
// the table from the module's .rc, the same source that windres compiles for Windows: the
// string tables it includes and the files its BITMAP, ICON, CURSOR and numeric-type lines name,
// embedded byte for byte. The plug-in links its table in and reaches it through own_resources();
// a host library exports its table under exported_table_symbol for dlsym.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tx::platform {

struct string_resource {
  std::uint32_t id;
  const char16_t* text;
  // Counted code units, including the NUL that the .rc stores after the text when it does.
  std::uint32_t length;
};

struct data_resource {
  std::uint32_t type;
  std::uint32_t id;
  // The file as the .rc names it: a whole .bmp, .ico or .cur file, or the raw text data.
  const std::uint8_t* bytes;
  std::size_t size;
};

struct resource_table {
  const string_resource* strings;  // sorted by id
  std::size_t string_count;
  const data_resource* data;  // sorted by type, then id
  std::size_t data_count;
};

// The numeric resource types of Windows for the files a table embeds.
namespace resource_type {
inline constexpr std::uint32_t bitmap = 2;
inline constexpr std::uint32_t group_cursor = 12;
inline constexpr std::uint32_t group_icon = 14;
}  // namespace resource_type

// The extern "C" name of a shared library's exported table.
inline constexpr const char* exported_table_symbol = "tx_module_resources";

// The table linked into the calling module; hidden, so that every module answers its own.
const resource_table* own_resources() noexcept;

// ---- Compile-time helpers of the generated tables -------------------------------------------

constexpr bool key_less(const string_resource& a, const string_resource& b) { return a.id < b.id; }

constexpr bool key_less(const data_resource& a, const data_resource& b) {
  return a.type != b.type ? a.type < b.type : a.id < b.id;
}

template <class Entry, std::size_t N>
constexpr std::array<Entry, N> sorted(std::array<Entry, N> entries) {
  std::sort(entries.begin(), entries.end(),
            [](const Entry& a, const Entry& b) { return key_less(a, b); });
  return entries;
}

// Whether no two neighbours of a sorted table share a key (windres rejects duplicates too).
template <class Entry, std::size_t N>
constexpr bool unique_keys(const std::array<Entry, N>& entries) {
  for (std::size_t i = 1; i < N; ++i) {
    if (!key_less(entries[i - 1], entries[i])) return false;
  }
  return true;
}

}  // namespace tx::platform
