// The text that matching compares: the text itself when case matters, otherwise a lower-cased
// copy (the platform's case mapping, through case_table.h; same length, so positions found in
// the copy apply to the text). «Road» matched without regard to case is compared as «road».
#pragma once

#include <algorithm>
#include <string_view>

#include "rename/case_table.h"
#include "rename/small_buffer.h"

namespace tx::rename {

class match_text {
 public:
  // `text` must outlive this object when `match_case` is set (the view is then `text` itself).
  match_text(std::u16string_view text, bool match_case)
      : lowered_(match_case ? 0 : text.size()), view_(text) {
    if (match_case) return;
    std::copy(text.begin(), text.end(), lowered_.data());
    lower_case_in_place(lowered_.span());
    view_ = std::u16string_view(lowered_.data(), lowered_.size());
  }
  match_text(const match_text&) = delete;
  match_text& operator=(const match_text&) = delete;

  std::u16string_view view() const noexcept { return view_; }

 private:
  small_buffer<char16_t, 256> lowered_;
  std::u16string_view view_;
};

}  // namespace tx::rename
