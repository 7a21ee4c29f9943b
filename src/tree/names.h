// prjrename_names: the pending new names, keyed by uuid, with their undo and redo history.
//
// Every change is one step: applying the operations to the ticked elements, or typing one name.
// Steps go on the undo stack; undo moves the top step to the redo stack and redo moves it back;
// a new step clears the redo stack. A pushed step never changes. After every push, undo and redo
// the `changed` signal is emitted (never while a step is being built).
//
// How it is kept, so that a step over a whole project costs time and memory in proportion to
// its size alone:
//   - entries sit in one vector in the order they were created, found through an
//     open-addressing index of their positions;
//   - every name (an old name, each new name a step produced) is copied once into the store's
//     text arena; an entry, the changes of the steps and the tree's nodes refer to that text
//     instead of copying it. The arena only grows: the text of a step that a new step discards
//     from the redo stack stays in it until the store is destroyed, so that no handle given out
//     ever dangles. Undo and redo add no text, so repeating them costs no memory;
//   - entries created by a step are always the last ones in the vector while that step is the
//     top of the undo stack (a new step or a redo appends them, and the steps above it are
//     undone first), so undo erases them from the end and the order of the others holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "rename/operation.h"
#include "toolkit/event.h"
#include "tree/name_index.h"
#include "tree/text_arena.h"
#include "tree/uuid.h"

namespace tx {

struct prjrename_change {
  prjrename_change(tx_uuid of, prjrename_text from, prjrename_text to, bool created,
                   std::uint64_t touched_before) noexcept
      : uuid(of), before(from), after(to), previously_touched(touched_before), inserted(created) {}

  tx_uuid uuid;
  prjrename_text before;  // the new name before the step (for a new entry: the host caption)
  prjrename_text after;   // the new name after the step
  std::uint64_t previously_touched : 63;  // the entry's `touched` before the step
  std::uint64_t inserted : 1;             // the step created the entry
};
static_assert(sizeof(prjrename_change) == 32);

struct prjrename_step {
  std::vector<prjrename_change> changes;  // in processing order, at most one per uuid
  std::uint64_t serial = 0;               // unique in the store, never reused
};

class prjrename_names {
 public:
  prjrename_names() = default;
  prjrename_names(const prjrename_names&) = delete;
  prjrename_names& operator=(const prjrename_names&) = delete;

  // Applies `operations` in order to every element of `elements` as one step, each element
  // once. An element with an entry goes through the chain from its pending name, one without
  // from its host caption (an element the host no longer has is skipped). Returns whether a
  // step was pushed: a run that changes nothing pushes nothing, keeps the redo stack and emits
  // nothing.
  bool apply_chain(std::span<prjrename_operation* const> operations, const uuid_set& elements);
  // The same for one operation.
  bool apply_one(prjrename_operation& operation, const uuid_set& elements);
  // Makes `text` the new name of one element as one step, even when it equals the pending
  // name; nothing when the host no longer has the element.
  void set_name(tx_uuid uuid, std::u16string_view text);
  void undo();
  void redo();
  bool can_undo() const noexcept { return !undo_.empty(); }
  bool can_redo() const noexcept { return !redo_.empty(); }

  // The entry of `uuid`, or null. Its texts live as long as the store.
  const prjrename_name* find(tx_uuid uuid) const noexcept;
  // Every entry, in the order they were created.
  std::span<const prjrename_name> entries() const noexcept { return entries_; }
  std::size_t size() const noexcept { return entries_.size(); }
  // Whether the latest applied step (the undo stack's top) changed `uuid`. Constant time: each
  // entry remembers the serial of the latest applied step that changed it, kept up to date by
  // push, undo and redo in time proportional to the step alone.
  bool changed_last(tx_uuid uuid) const noexcept;
  // The same for an entry of this store.
  bool changed_last(const prjrename_name& entry) const noexcept {
    return !undo_.empty() && entry.touched == undo_.back()->serial;
  }
  const std::vector<std::unique_ptr<prjrename_step>>& undo_steps() const noexcept { return undo_; }
  const std::vector<std::unique_ptr<prjrename_step>>& redo_steps() const noexcept { return redo_; }

  // Emitted after every push, undo and redo; listeners may connect or disconnect while it runs.
  event<void()> changed;

 private:
  template <class Run>
  bool apply_step(const uuid_set& elements, Run&& run);
  // The step about to be built, with room for `changes` changes; the room for pushing it is
  // made here too, so that nothing fails once the store has begun to change.
  std::unique_ptr<prjrename_step> start_step(std::size_t changes);
  // Room for `more` entries beyond those held.
  void reserve_entries(std::size_t more);
  // Appends an entry (and indexes it); callers reserve the room first, so that this fails only
  // where they could not.
  void append_entry(const prjrename_name& entry);
  // Takes back the changes of `step`, last first: an entry the step created is erased, any
  // other gets its earlier name and mark back.
  void revert(const prjrename_step& step) noexcept;
  void push(std::unique_ptr<prjrename_step> step);
  // The position of the entry of `uuid`, or prjrename_name_index::absent.
  std::uint32_t locate(tx_uuid uuid) const noexcept;

  std::vector<prjrename_name> entries_;
  prjrename_name_index index_;
  prjrename_text_arena text_;
  std::vector<std::unique_ptr<prjrename_step>> undo_;
  std::vector<std::unique_ptr<prjrename_step>> redo_;
  std::uint64_t last_serial_ = 0;
  // Where the next lookup looks first, before the index: just past the entry found last. A
  // walk over the tree, and a step over the elements collected from it, meet the elements in
  // the order their entries were created, so they find each entry there, reading the entries
  // in order instead of jumping through the index.
  mutable std::size_t next_guess_ = 0;
};

}  // namespace tx
