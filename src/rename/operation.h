// tx::prjrename_operation: one of the four rename operations.
//
// An operation owns its settings panel (toolkit elements the host renders) and reads its
// parameters from that panel at the moment it is applied: it keeps no copy of them. Applying
// never fails: settings that cannot change a name leave it as it is and answer false.
#pragma once

#include <cstdint>
#include <string>

#include "plugin/interface.h"
#include "rename/separator_set.h"

namespace tx {

class prjrename_operation {
 public:
  prjrename_operation(const prjrename_operation&) = delete;
  prjrename_operation& operator=(const prjrename_operation&) = delete;
  virtual ~prjrename_operation() = default;

  // The settings panel's element (its layout), or a null pair when it has none.
  virtual custom_pointer element() = 0;
  // Keeps the texts now set in their inputs' histories.
  virtual void remember() {}
  // Sets `result` to the name transformed by the current settings; answers whether it differs
  // from the name. A false answer always leaves `result` equal to the name.
  virtual bool apply(const std::u16string& name, std::u16string& result) = 0;
  // Returns the panel's inputs to their empty state.
  virtual void reset() {}
  // Whether the current settings can change no name at all.
  virtual bool is_idle() = 0;

  // The string id of the operation's display name.
  std::uint32_t title_id() const noexcept { return title_id_; }
  const rename::separator_set& separators() const noexcept { return separators_; }

 protected:
  // Loads the separator set (string 128) in the current interface language.
  explicit prjrename_operation(std::uint32_t title_id);

 private:
  std::uint32_t title_id_;
  std::u16string separator_text_;
  rename::separator_set separators_;
};

}  // namespace tx
