// The platform backend: the few things the plug-in asks of the operating system. One header,
// two implementations: win32/ (the user32, gdi32 and kernel32 calls of the product) and posix/
// (the same resources compiled into each module from the same .rc source, read from a table).
// Everything above this header is the same code in both builds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tx::platform {

// ---- Case mapping -------------------------------------------------------------------------
// Lower- or upper-cases UTF-16 text in place, code unit by code unit as the Windows case tables
// do: the length never changes, a letter maps only to the partner that maps back to it, and a
// lone surrogate stays as it is.
void to_lower(std::span<char16_t> text) noexcept;
void to_upper(std::span<char16_t> text) noexcept;
inline void to_lower(std::u16string& text) noexcept { to_lower(std::span<char16_t>(text)); }
inline void to_upper(std::u16string& text) noexcept { to_upper(std::span<char16_t>(text)); }

// ---- Modules --------------------------------------------------------------------------------
// A loaded module whose resources can be read. Borrowed: whoever loaded the module keeps it
// loaded; the plug-in never loads or frees one.
class module {
 public:
  module() = default;
  explicit module(const void* handle) noexcept : handle_(handle) {}
  const void* handle() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != nullptr; }

 private:
  const void* handle_ = nullptr;
};

// The module that holds the calling code: the plug-in library, or the test program that links
// the plug-in's resources.
module own_module() noexcept;
// An already loaded module by its Windows file name ("txk_basic.dll"; natively the ".so" of the
// same base name); an empty module when none is loaded.
module find_module(std::u16string_view file_name) noexcept;
// The exported function `name` of an already loaded module found by its Windows file name (as
// find_module), or null when the module or the export is missing. Nothing is loaded.
void* find_function(std::u16string_view file_name, const char* name) noexcept;

// ---- Strings and raw data ---------------------------------------------------------------------
// Resource ids are 16-bit, as in a Windows module; a larger id is never found.
inline constexpr std::uint32_t max_resource_id = 0xFFFF;
// The resource type of multi-byte text data.
inline constexpr std::uint32_t text_data_type = 260;

// String `id` as stored, read in place: its counted code units, which end with a NUL when the
// table stores the string terminated. Empty when the module has no such string.
std::u16string_view stored_string(module from, std::uint32_t id) noexcept;
// Copies string `id` into `buffer`, truncated to fit, and terminates it with a NUL. Returns the
// code units copied, the NUL not counted; 0, the buffer untouched, when there is no such string
// or no room for one unit and the NUL.
std::size_t copy_string(module from, std::uint32_t id, std::span<char16_t> buffer) noexcept;
// The bytes of resource `id` of numeric `type`, read in place; empty when there is none.
std::span<const std::byte> resource_data(module from, std::uint32_t type,
                                         std::uint32_t id) noexcept;
// Multi-byte text in Windows code page `code_page` as UTF-16; nothing when the code page is
// unknown or the bytes are not valid in it.
std::optional<std::u16string> to_utf16(std::span<const std::byte> text, std::uint32_t code_page);

// ---- Pixels ---------------------------------------------------------------------------------
// Images wider or taller than this are refused as damaged, before any allocation.
inline constexpr std::int32_t max_image_side = 4096;

// Memory taken from the system in whole pages, zero-filled, and given back when destroyed.
class page_buffer {
 public:
  page_buffer() = default;
  // Empty when the system refuses the allocation.
  explicit page_buffer(std::size_t size) noexcept;
  page_buffer(page_buffer&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  page_buffer& operator=(page_buffer&& other) noexcept {
    if (this != &other) {
      release();
      data_ = std::exchange(other.data_, nullptr);
      size_ = std::exchange(other.size_, 0);
    }
    return *this;
  }
  page_buffer(const page_buffer&) = delete;
  page_buffer& operator=(const page_buffer&) = delete;
  ~page_buffer() { release(); }

  std::uint8_t* data() const noexcept { return data_; }
  std::size_t size() const noexcept { return size_; }
  explicit operator bool() const noexcept { return data_ != nullptr; }

 private:
  // Gives the pages back to the system (each system's own call) and empties the buffer.
  void release() noexcept;

  std::uint8_t* data_ = nullptr;
  std::size_t size_ = 0;
};

// A bitmap as 32-bit pixels, the bytes of each blue, green, red and a fourth byte that the
// image leaves 0 unless it has its own; rows bottom-up, width × 4 bytes each, no padding.
struct bitmap_pixels {
  std::int32_t width = 0;
  std::int32_t height = 0;
  page_buffer pixels;
};

// Bitmap `id` of `from` at its own size; nothing when it is missing or cannot be read.
std::optional<bitmap_pixels> load_bitmap(module from, std::uint32_t id) noexcept;

// An icon (or cursor) as two square planes in one buffer: width × width pixels of 24-bit
// colour (blue, green, red), then width × width bytes of mask (255 where the icon lets the
// background through, 0 where it paints); rows bottom-up in both, no padding.
struct icon_planes {
  std::int32_t hot_x = 0;
  std::int32_t hot_y = 0;
  std::int32_t width = 0;
  std::unique_ptr<std::uint8_t[]> buffer;
  // Set when at least one plane was read (a plane that could not be read is left zeroed); when
  // clear, every other field is empty too.
  bool loaded = false;
};

// Icon `id` of `from` at the default icon size or, when the module has no such icon, cursor
// `id`. A monochrome image (no colour bitmap) gives its black-and-white picture as the colour
// plane. Nothing is loaded when neither exists.
icon_planes load_icon(module from, std::uint32_t id) noexcept;

}  // namespace tx::platform
