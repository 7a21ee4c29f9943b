// prjrename_names: the pending new names, keyed by uuid, with their undo and redo history.
//
// Every change is one step: applying the operations to the ticked elements, or typing one name.
// Steps go on the undo stack; undo moves the top step to the redo stack and redo moves it back;
// a new step clears the redo stack. A pushed step never changes. After every push, undo and redo
// the `changed` signal is emitted (never while a step is being built).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "rename/operation.h"
#include "toolkit/event.h"
#include "tree/uuid.h"

namespace tx {

struct prjrename_name {
  std::u16string old_name;    // the host's caption when the entry was created; never updated
  std::u16string new_name;    // the pending name; may be empty
  std::uint64_t touched = 0;  // the serial of the latest applied step that changed the entry
};

struct prjrename_change {
  tx_uuid uuid;
  std::u16string before;  // the new name before the step (for a new entry: the host caption)
  std::u16string after;   // the new name after the step
  bool inserted;          // the step created the entry
  std::uint64_t previously_touched = 0;  // the entry's `touched` before the step
};

struct prjrename_step {
  std::vector<prjrename_change> changes;  // in processing order, at most one per uuid
  std::uint64_t serial = 0;               // unique in the store, never reused
};

class prjrename_names {
 public:
  using entry_map = std::unordered_map<tx_uuid, prjrename_name, uuid_hash, uuid_equal>;

  prjrename_names() = default;
  prjrename_names(const prjrename_names&) = delete;
  prjrename_names& operator=(const prjrename_names&) = delete;

  // Applies `operations` in order to every element of `elements` as one step. An element with
  // an entry goes through the chain from its pending name, one without from its host caption
  // (an element the host no longer has is skipped). Returns whether a step was pushed: a run
  // that changes nothing pushes nothing, keeps the redo stack and emits nothing.
  bool apply_chain(std::span<prjrename_operation* const> operations, const uuid_set& elements);
  // The same for one operation.
  bool apply_one(prjrename_operation& operation, const uuid_set& elements);
  // Makes `text` the new name of one element as one step, even when it equals the pending
  // name; nothing when the host no longer has the element.
  void set_name(tx_uuid uuid, const std::u16string& text);
  void undo();
  void redo();
  bool can_undo() const noexcept { return !undo_.empty(); }
  bool can_redo() const noexcept { return !redo_.empty(); }

  // The entry of `uuid`, or null.
  const prjrename_name* find(tx_uuid uuid) const;
  const entry_map& entries() const noexcept { return entries_; }
  std::size_t size() const noexcept { return entries_.size(); }
  // Whether the latest applied step (the undo stack's top) changed `uuid`. Constant time: each
  // entry remembers the serial of the latest applied step that changed it, kept up to date by
  // push, undo and redo in time proportional to the step alone.
  bool changed_last(tx_uuid uuid) const;
  const std::vector<std::unique_ptr<prjrename_step>>& undo_steps() const noexcept { return undo_; }
  const std::vector<std::unique_ptr<prjrename_step>>& redo_steps() const noexcept { return redo_; }

  // Emitted after every push, undo and redo; listeners may connect or disconnect while it runs.
  event<void()> changed;

 private:
  template <class Run>
  bool apply_step(const uuid_set& elements, Run&& run);
  void push(std::unique_ptr<prjrename_step> step);

  entry_map entries_;
  std::vector<std::unique_ptr<prjrename_step>> undo_;
  std::vector<std::unique_ptr<prjrename_step>> redo_;
  std::uint64_t last_serial_ = 0;
};

}  // namespace tx
