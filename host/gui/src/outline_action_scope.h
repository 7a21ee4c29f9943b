// The outline control's actions and the rows they work on. Rebuilding waits for the end of an
// action: the rows it is working on stay the list's rows until then. An action the list itself
// runs (a selection change it notifies) has the rebuild posted, so the list is not changed under
// its own feet.
#pragma once

#include "outline_control.h"

namespace tx::host::gui {

class outline_control::action_scope {
 public:
  explicit action_scope(outline_control& control, bool from_list = false) noexcept
      : control_(control), from_list_(from_list) {
    ++control_.busy_;
  }
  action_scope(const action_scope&) = delete;
  action_scope& operator=(const action_scope&) = delete;
  ~action_scope();

 private:
  outline_control& control_;
  bool from_list_;
};

}  // namespace tx::host::gui
