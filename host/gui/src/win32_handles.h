// Owners of the Win32 handles the window makes: each released by its own function when its owner
// goes, so that no control has to remember what to destroy; and one way of seeing a native
// window's messages first (a subclass), removed before the window is destroyed.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace tx::host::gui {

// Calls `Release` on the handle a unique_ptr owns when it goes.
template <auto Release>
struct released_by {
  template <class Handle>
  void operator()(Handle* handle) const noexcept {
    Release(handle);
  }
};

using unique_window = std::unique_ptr<HWND__, released_by<&DestroyWindow>>;
using unique_font = std::unique_ptr<HFONT__, released_by<&DeleteObject>>;
using unique_bitmap = std::unique_ptr<HBITMAP__, released_by<&DeleteObject>>;
using unique_brush = std::unique_ptr<HBRUSH__, released_by<&DeleteObject>>;
using unique_pen = std::unique_ptr<HPEN__, released_by<&DeleteObject>>;
using unique_image_list = std::unique_ptr<_IMAGELIST, released_by<&ImageList_Destroy>>;
// A memory device context (CreateCompatibleDC).
using unique_dc = std::unique_ptr<HDC__, released_by<&DeleteDC>>;

// Sees the messages of `window` before its own procedure does, for as long as it lives: a
// message the procedure answers (a value) is not handed on; one it leaves (nothing) is. Remove
// it (let it go) before the window is destroyed.
class window_subclass {
 public:
  using procedure = std::function<std::optional<LRESULT>(UINT message, WPARAM w, LPARAM l)>;

  window_subclass() = default;
  window_subclass(HWND window, procedure handler)
      : window_(window), handler_(std::make_unique<procedure>(std::move(handler))) {
    if (window_ == nullptr ||
        !SetWindowSubclass(window_, &route, 1, reinterpret_cast<DWORD_PTR>(handler_.get()))) {
      window_ = nullptr;
    }
  }
  window_subclass(window_subclass&& other) noexcept
      : window_(std::exchange(other.window_, nullptr)), handler_(std::move(other.handler_)) {}
  window_subclass& operator=(window_subclass&& other) noexcept {
    if (this != &other) {
      remove();
      window_ = std::exchange(other.window_, nullptr);
      handler_ = std::move(other.handler_);
    }
    return *this;
  }
  window_subclass(const window_subclass&) = delete;
  window_subclass& operator=(const window_subclass&) = delete;
  ~window_subclass() { remove(); }

  // The window's own procedure, for a message the handler acts on and still hands on.
  static LRESULT pass_on(HWND window, UINT message, WPARAM w, LPARAM l) {
    return DefSubclassProc(window, message, w, l);
  }

 private:
  static LRESULT CALLBACK route(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                DWORD_PTR handler) {
    const std::optional<LRESULT> answer = (*reinterpret_cast<procedure*>(handler))(message, w, l);
    return answer ? *answer : DefSubclassProc(window, message, w, l);
  }
  void remove() noexcept {
    if (window_ != nullptr) RemoveWindowSubclass(window_, &route, 1);
    window_ = nullptr;
  }

  HWND window_ = nullptr;
  std::unique_ptr<procedure> handler_;
};

}  // namespace tx::host::gui
