#include "outline_images.h"

#include <array>
#include <cstdint>
#include <functional>

#include "native.h"

namespace tx::host::gui {
namespace {

// Magenta never appears in the pictures drawn here: it marks their transparent pixels.
constexpr COLORREF kTransparent = RGB(255, 0, 255);
// The pictures are drawn on a grid of this many steps a side, scaled to the list's icon size.
constexpr int kGridSteps = 16;
// A tick box's side, in grid steps, as a check box draws it.
constexpr int kBoxSide = 13;
constexpr COLORREF kCollapsedExpander = RGB(120, 120, 120);
constexpr COLORREF kExpandedExpander = RGB(64, 64, 64);

// Draws one picture of `size` pixels with `paint` and adds it to `list`.
void add_picture(HIMAGELIST list, int size, const std::function<void(HDC, const RECT&)>& paint) {
  std::uint32_t* pixels = nullptr;
  const unique_bitmap bitmap(top_down_bitmap(size, size, &pixels));
  const unique_dc dc(CreateCompatibleDC(nullptr));
  if (!bitmap || !dc) return;
  const HGDIOBJ old = SelectObject(dc.get(), bitmap.get());
  const RECT all{0, 0, size, size};
  const unique_brush background(CreateSolidBrush(kTransparent));
  FillRect(dc.get(), &all, background.get());
  paint(dc.get(), all);
  SelectObject(dc.get(), old);
  ImageList_AddMasked(list, bitmap.get(), kTransparent);
}

// A filled triangle through three points given in grid steps.
void triangle(HDC dc, int size, std::array<POINT, 3> points, COLORREF colour) {
  for (POINT& p : points) {
    p.x = MulDiv(p.x, size, kGridSteps);
    p.y = MulDiv(p.y, size, kGridSteps);
  }
  const unique_brush brush(CreateSolidBrush(colour));
  const unique_pen pen(CreatePen(PS_SOLID, 1, colour));
  const HGDIOBJ old_brush = SelectObject(dc, brush.get());
  const HGDIOBJ old_pen = SelectObject(dc, pen.get());
  Polygon(dc, points.data(), static_cast<int>(points.size()));
  SelectObject(dc, old_brush);
  SelectObject(dc, old_pen);
}

}  // namespace

outline_images::outline_images(int size)
    : expanders_(ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, 2, 0)),
      boxes_(ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, 4, 0)) {
  // ▸ and ▾, as tree views draw them, at state images 1 and 2 (0 is none: the list skips it).
  add_picture(expanders(), size, [size](HDC dc, const RECT&) {
    triangle(dc, size, {POINT{6, 4}, POINT{10, 8}, POINT{6, 12}}, kCollapsedExpander);
  });
  add_picture(expanders(), size, [size](HDC dc, const RECT&) {
    triangle(dc, size, {POINT{4, 6}, POINT{12, 6}, POINT{8, 10}}, kExpandedExpander);
  });
  // The box a check box draws, centred: clear and ticked, then both greyed (see box_image).
  for (const bool enabled : {true, false}) {
    for (const bool ticked : {false, true}) {
      add_picture(boxes(), size, [=](HDC dc, const RECT& all) {
        const int side = MulDiv(kBoxSide, size, kGridSteps);
        const int at = (all.right - side) / 2;
        RECT box{at, at, at + side, at + side};
        UINT state = DFCS_BUTTONCHECK | DFCS_FLAT;
        if (ticked) state |= DFCS_CHECKED;
        if (!enabled) state |= DFCS_INACTIVE;
        DrawFrameControl(dc, &box, DFC_BUTTON, state);
      });
    }
  }
}

}  // namespace tx::host::gui
