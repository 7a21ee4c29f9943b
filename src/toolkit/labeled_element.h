// labeled_element<T>: the element T with a caption of its own (shown beside it by the host).
#pragma once

#include <cstdint>
#include <utility>

namespace tx::toolkit::detail {

template <class T>
class labeled_element final : public T {
 public:
  template <class... Args>
  explicit labeled_element(std::int32_t caption, Args&&... args) : T(std::forward<Args>(args)...) {
    this->set_caption(caption);
  }
};

}  // namespace tx::toolkit::detail
