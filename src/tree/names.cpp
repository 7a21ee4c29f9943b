#include "tree/names.h"

#include <algorithm>

#include "rename/chain.h"
#include "tree/host_text.h"

namespace tx {
namespace {

// How many elements ahead a loop over many uuids prefetches their index slots.
constexpr std::size_t lookahead = 16;

// Room for one more element, growing geometrically.
template <class T>
void make_room_for_one(std::vector<T>& list) {
  if (list.size() == list.capacity()) list.reserve(std::max<std::size_t>(8, 2 * list.capacity()));
}

}  // namespace

template <class Run>
bool prjrename_names::apply_step(const uuid_set& elements, Run&& run) {
  const std::uint64_t serial = last_serial_ + 1;
  std::unique_ptr<prjrename_step> step;  // started at the first change
  std::u16string name, result, scratch;
  host_caption_reader captions;
  // The elements without an entry: the most entries this step can create. Room for them is made
  // at the first change, so that the entries and their index grow at most once.
  std::size_t unseen = 0;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (i + lookahead < elements.size()) index_.prefetch(elements[i + lookahead]);
    unseen += locate(elements[i]) == prjrename_name_index::absent;
  }
  auto start = [&](std::size_t i) {
    step = start_step(elements.size() - i);
    reserve_entries(unseen);
  };
  try {
    for (std::size_t i = 0; i < elements.size(); ++i) {
      if (i + lookahead < elements.size()) index_.prefetch(elements[i + lookahead]);
      const tx_uuid uuid = elements[i];
      if (const std::uint32_t at = locate(uuid); at != prjrename_name_index::absent) {
        if (entries_[at].touched == serial) continue;  // this step has processed it already
        name.assign(entries_[at].new_name.view());
        if (!run(name, result, scratch)) continue;
        if (!step) start(i);
        const prjrename_text after = text_.add(result);
        prjrename_name& entry = entries_[at];
        step->changes.emplace_back(uuid, entry.new_name, after, false, entry.touched);
        entry.new_name = after;
        entry.touched = serial;
        continue;
      }
      tx_entity* entity = tx_entity_storage_find_by_uid(uuid);
      if (entity == nullptr) continue;
      const std::u16string& caption = captions.read(entity);
      if (!run(caption, result, scratch)) continue;
      if (!step) start(i);
      const prjrename_text old_name = text_.add(caption);
      const prjrename_text after = text_.add(result);
      step->changes.emplace_back(uuid, old_name, after, true, 0);
      append_entry({uuid, old_name, after, serial});
    }
  } catch (...) {
    // Out of memory half way: the store goes back to where it was (the text already added
    // stays unused in the arena).
    if (step) revert(*step);
    throw;
  }
  if (!step) return false;
  if (step->changes.size() < step->changes.capacity() / 2) step->changes.shrink_to_fit();
  push(std::move(step));
  return true;
}

bool prjrename_names::apply_chain(std::span<prjrename_operation* const> operations,
                                  const uuid_set& elements) {
  return apply_step(
      elements, [&](const std::u16string& name, std::u16string& result, std::u16string& scratch) {
        return rename::run_chain(operations, name, result, scratch);
      });
}

bool prjrename_names::apply_one(prjrename_operation& operation, const uuid_set& elements) {
  return apply_step(elements, [&](const std::u16string& name, std::u16string& result,
                                  std::u16string&) { return operation.apply(name, result); });
}

void prjrename_names::set_name(tx_uuid uuid, std::u16string_view text) {
  const std::uint32_t at = locate(uuid);
  std::u16string caption;
  if (at == prjrename_name_index::absent) {
    tx_entity* entity = tx_entity_storage_find_by_uid(uuid);
    if (entity == nullptr) return;
    caption = host_caption(&tx_entity_get_wcaption, entity);
    reserve_entries(1);
  }
  std::unique_ptr<prjrename_step> step = start_step(1);
  const prjrename_text after = text_.add(text);
  if (at != prjrename_name_index::absent) {
    prjrename_name& entry = entries_[at];
    step->changes.emplace_back(uuid, entry.new_name, after, false, entry.touched);
    entry.new_name = after;
    entry.touched = step->serial;
  } else {
    const prjrename_text old_name = text_.add(caption);
    step->changes.emplace_back(uuid, old_name, after, true, 0);
    append_entry({uuid, old_name, after, step->serial});
  }
  push(std::move(step));
}

std::unique_ptr<prjrename_step> prjrename_names::start_step(std::size_t changes) {
  auto step = std::make_unique<prjrename_step>();
  step->serial = last_serial_ + 1;
  step->changes.reserve(changes);
  make_room_for_one(undo_);
  return step;
}

void prjrename_names::reserve_entries(std::size_t more) {
  const std::size_t wanted = entries_.size() + more;
  if (wanted <= entries_.capacity()) return;
  const std::size_t capacity = std::max({wanted, 2 * entries_.capacity(), std::size_t{16}});
  index_.reserve(capacity);
  entries_.reserve(capacity);
}

void prjrename_names::append_entry(const prjrename_name& entry) {
  reserve_entries(1);  // made already by every caller; the index needs it
  entries_.push_back(entry);
  index_.insert_last(entries_);
}

void prjrename_names::revert(const prjrename_step& step) noexcept {
  const std::vector<prjrename_change>& changes = step.changes;
  for (std::size_t i = changes.size(); i-- > 0;) {
    if (i >= lookahead) index_.prefetch(changes[i - lookahead].uuid);
    const prjrename_change* change = &changes[i];
    // An entry the step created is the last one (see the header).
    const bool last =
        change->inserted && !entries_.empty() && uuid_equal{}(entries_.back().uuid, change->uuid);
    const std::uint32_t at = last ? static_cast<std::uint32_t>(entries_.size() - 1)
                                  : index_.find(change->uuid, entries_);
    if (at == prjrename_name_index::absent) continue;
    if (!change->inserted) {
      entries_[at].new_name = change->before;
      entries_[at].touched = change->previously_touched;
      continue;
    }
    index_.erase(at, entries_);
    if (at + 1 == entries_.size()) {
      entries_.pop_back();
    } else {
      // Only if the entries ever left the order of the steps (see the header): erased all the
      // same, and the rest placed afresh.
      entries_.erase(entries_.begin() + at);
      index_.rebuild(entries_);
    }
  }
}

void prjrename_names::push(std::unique_ptr<prjrename_step> step) {
  last_serial_ = step->serial;
  undo_.push_back(std::move(step));  // room made by start_step
  redo_.clear();
  changed();
}

void prjrename_names::undo() {
  if (undo_.empty()) return;
  make_room_for_one(redo_);
  std::unique_ptr<prjrename_step> step = std::move(undo_.back());
  undo_.pop_back();
  revert(*step);
  redo_.push_back(std::move(step));
  changed();
}

void prjrename_names::redo() {
  if (redo_.empty()) return;
  const auto& created = redo_.back()->changes;
  reserve_entries(static_cast<std::size_t>(std::count_if(
      created.begin(), created.end(), [](const prjrename_change& c) { return c.inserted != 0; })));
  make_room_for_one(undo_);
  std::unique_ptr<prjrename_step> step = std::move(redo_.back());
  redo_.pop_back();
  const std::vector<prjrename_change>& changes = step->changes;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (i + lookahead < changes.size()) index_.prefetch(changes[i + lookahead].uuid);
    const prjrename_change& change = changes[i];
    if (const std::uint32_t at = locate(change.uuid); at != prjrename_name_index::absent) {
      entries_[at].new_name = change.after;
      entries_[at].touched = step->serial;
    } else {
      append_entry({change.uuid, change.before, change.after, step->serial});
    }
  }
  undo_.push_back(std::move(step));
  changed();
}

std::uint32_t prjrename_names::locate(tx_uuid uuid) const noexcept {
  if (next_guess_ < entries_.size() && uuid_equal{}(entries_[next_guess_].uuid, uuid)) {
    return static_cast<std::uint32_t>(next_guess_++);
  }
  const std::uint32_t at = index_.find(uuid, entries_);
  if (at != prjrename_name_index::absent) next_guess_ = std::size_t{at} + 1;
  return at;
}

const prjrename_name* prjrename_names::find(tx_uuid uuid) const noexcept {
  const std::uint32_t at = locate(uuid);
  return at != prjrename_name_index::absent ? &entries_[at] : nullptr;
}

bool prjrename_names::changed_last(tx_uuid uuid) const noexcept {
  const prjrename_name* entry = find(uuid);
  // An entry the top step had created and undo erased is in no applied step.
  return entry != nullptr && changed_last(*entry);
}

}  // namespace tx
