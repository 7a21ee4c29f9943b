#include "outline_images.h"

#include <array>
#include <functional>

namespace tx::host::gui {
namespace {

// Magenta never appears in the pictures drawn here: it marks their transparent pixels.
constexpr COLORREF kTransparent = RGB(255, 0, 255);

// Draws one picture of `size` pixels with `paint` and adds it to `list`.
void add_picture(HIMAGELIST list, int size, const std::function<void(HDC, const RECT&)>& paint) {
  HDC screen = GetDC(nullptr);
  HDC dc = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, size, size);
  ReleaseDC(nullptr, screen);
  HGDIOBJ old = SelectObject(dc, bitmap);
  const RECT all{0, 0, size, size};
  HBRUSH background = CreateSolidBrush(kTransparent);
  FillRect(dc, &all, background);
  DeleteObject(background);
  paint(dc, all);
  SelectObject(dc, old);
  DeleteDC(dc);
  ImageList_AddMasked(list, bitmap, kTransparent);
  DeleteObject(bitmap);
}

// A filled triangle through three points given in sixteenths of the picture's side.
void triangle(HDC dc, int size, std::array<POINT, 3> points, COLORREF colour) {
  for (POINT& p : points) {
    p.x = MulDiv(p.x, size, 16);
    p.y = MulDiv(p.y, size, 16);
  }
  HBRUSH brush = CreateSolidBrush(colour);
  HPEN pen = CreatePen(PS_SOLID, 1, colour);
  HGDIOBJ old_brush = SelectObject(dc, brush);
  HGDIOBJ old_pen = SelectObject(dc, pen);
  Polygon(dc, points.data(), static_cast<int>(points.size()));
  SelectObject(dc, old_brush);
  SelectObject(dc, old_pen);
  DeleteObject(brush);
  DeleteObject(pen);
}

}  // namespace

outline_images::outline_images(int size) {
  expanders_ = ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, 2, 0);
  boxes_ = ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, 4, 0);
  // ▸ and ▾, as tree views draw them.
  add_picture(expanders_, size, [size](HDC dc, const RECT&) {
    triangle(dc, size, {POINT{6, 4}, POINT{10, 8}, POINT{6, 12}}, RGB(120, 120, 120));
  });
  add_picture(expanders_, size, [size](HDC dc, const RECT&) {
    triangle(dc, size, {POINT{4, 6}, POINT{12, 6}, POINT{8, 10}}, RGB(64, 64, 64));
  });
  // The box a check box draws, centred: clear and ticked, then both greyed.
  for (const bool enabled : {true, false}) {
    for (const bool ticked : {false, true}) {
      add_picture(boxes_, size, [=](HDC dc, const RECT& all) {
        const int side = MulDiv(13, size, 16);
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

outline_images::~outline_images() {
  if (expanders_ != nullptr) ImageList_Destroy(expanders_);
  if (boxes_ != nullptr) ImageList_Destroy(boxes_);
}

}  // namespace tx::host::gui
