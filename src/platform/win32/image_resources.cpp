// Bitmaps and icons of a module through user32 and gdi32: LoadImageW, GetIconInfo and
// GetDIBits into a memory device context. Every handle is owned by a holder, so each early
// return releases what was obtained so far.
#include <cstdlib>
#include <memory>

#include "platform/platform.h"
#include "platform/win32/dib.h"
#include "platform/win32/handles.h"

namespace tx::platform {
namespace {

bool valid_side(std::int64_t side) noexcept { return side > 0 && side <= max_image_side; }

// A bitmap's height, positive whether it is stored bottom-up or top-down.
std::int32_t rows_of(const BITMAPINFOHEADER& header) noexcept {
  const std::int64_t rows = std::abs(std::int64_t{header.biHeight});
  return valid_side(rows) ? static_cast<std::int32_t>(rows) : 0;
}

bool valid_image_id(module from, std::uint32_t id) noexcept {
  return from && id != 0 && id <= max_resource_id;
}

// The two planes of an icon: GetIconInfo gives the mask (double height, AND half on top, when
// the icon is monochrome) and the colour bitmap (absent when monochrome).
icon_planes read_planes(HICON icon) noexcept {
  ICONINFO info{};
  if (!GetIconInfo(icon, &info)) return {};
  const win32::unique_bitmap mask{info.hbmMask};
  const win32::unique_bitmap colour{info.hbmColor};
  if (!mask) return {};
  const win32::unique_dc dc{CreateCompatibleDC(nullptr)};
  if (!dc) return {};
  const auto mask_header = win32::dib_header(dc.get(), mask.get());
  if (!mask_header || !valid_side(mask_header->biWidth)) return {};
  const std::int32_t width = mask_header->biWidth;
  const std::int32_t mask_height = rows_of(*mask_header);
  const auto area = static_cast<std::size_t>(width) * static_cast<std::size_t>(width);
  icon_planes planes;
  try {
    planes.buffer = std::make_unique<std::uint8_t[]>(area * 4);
  } catch (...) {
    return {};
  }
  bool colour_read = false;
  if (colour) {
    const auto colour_header = win32::dib_header(dc.get(), colour.get());
    colour_read =
        colour_header && win32::fetch_rows(dc.get(), colour.get(), rows_of(*colour_header), 0,
                                           width, 24, width, planes.buffer.get());
  } else {
    // A monochrome icon's picture is the lower (XOR) half of its mask.
    colour_read = win32::fetch_rows(dc.get(), mask.get(), mask_height, 0, width, 24, width,
                                    planes.buffer.get());
  }
  const std::int32_t mask_first = colour ? 0 : width;
  const bool mask_read = win32::fetch_rows(dc.get(), mask.get(), mask_height, mask_first, width, 8,
                                           width, planes.buffer.get() + area * 3);
  if (!colour_read && !mask_read) return {};
  planes.hot_x = static_cast<std::int32_t>(info.xHotspot);
  planes.hot_y = static_cast<std::int32_t>(info.yHotspot);
  planes.width = width;
  planes.loaded = true;
  return planes;
}

}  // namespace

std::optional<bitmap_pixels> load_bitmap(module from, std::uint32_t id) noexcept {
  if (!valid_image_id(from, id)) return std::nullopt;
  const win32::unique_bitmap image{static_cast<HBITMAP>(LoadImageW(
      win32::native(from), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION))};
  if (!image) return std::nullopt;
  const win32::unique_dc dc{CreateCompatibleDC(nullptr)};
  if (!dc) return std::nullopt;
  const auto header = win32::dib_header(dc.get(), image.get());
  if (!header || !valid_side(header->biWidth) || rows_of(*header) == 0) return std::nullopt;
  bitmap_pixels result;
  result.width = header->biWidth;
  result.height = rows_of(*header);
  result.pixels = page_buffer(static_cast<std::size_t>(result.width) *
                              static_cast<std::size_t>(result.height) * 4);
  if (!result.pixels) return std::nullopt;
  if (!win32::fetch_rows(dc.get(), image.get(), result.height, 0, result.height, 32, result.width,
                         result.pixels.data())) {
    return std::nullopt;
  }
  return result;
}

icon_planes load_icon(module from, std::uint32_t id) noexcept {
  if (!valid_image_id(from, id)) return {};
  const HMODULE handle = win32::native(from);
  if (const win32::unique_icon icon{static_cast<HICON>(
          LoadImageW(handle, MAKEINTRESOURCEW(id), IMAGE_ICON, 0, 0, LR_DEFAULTSIZE))}) {
    return read_planes(icon.get());
  }
  if (const win32::unique_cursor cursor{static_cast<HCURSOR>(
          LoadImageW(handle, MAKEINTRESOURCEW(id), IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE))}) {
    return read_planes(cursor.get());
  }
  return {};
}

}  // namespace tx::platform
