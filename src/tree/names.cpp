#include "tree/names.h"

#include "rename/chain.h"
#include "tree/host_text.h"

namespace tx {

template <class Run>
bool prjrename_names::apply_step(const uuid_set& elements, Run&& run) {
  auto step = std::make_unique<prjrename_step>();
  step->serial = last_serial_ + 1;
  std::u16string result, scratch;
  for (const tx_uuid uuid : elements) {
    if (const auto it = entries_.find(uuid); it != entries_.end()) {
      if (!run(it->second.new_name, result, scratch)) continue;
      step->changes.push_back({uuid, it->second.new_name, result, false, it->second.touched});
      it->second.new_name = result;
      it->second.touched = step->serial;
      continue;
    }
    tx_entity* entity = tx_entity_storage_find_by_uid(uuid);
    if (entity == nullptr) continue;
    std::u16string caption = host_caption(&tx_entity_get_wcaption, entity);
    if (!run(caption, result, scratch)) continue;
    step->changes.push_back({uuid, caption, result, true, 0});
    entries_.emplace(uuid, prjrename_name{std::move(caption), result, step->serial});
  }
  if (step->changes.empty()) return false;
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

void prjrename_names::set_name(tx_uuid uuid, const std::u16string& text) {
  auto step = std::make_unique<prjrename_step>();
  step->serial = last_serial_ + 1;
  if (const auto it = entries_.find(uuid); it != entries_.end()) {
    step->changes.push_back({uuid, it->second.new_name, text, false, it->second.touched});
    it->second.new_name = text;
    it->second.touched = step->serial;
  } else {
    tx_entity* entity = tx_entity_storage_find_by_uid(uuid);
    if (entity == nullptr) return;
    std::u16string caption = host_caption(&tx_entity_get_wcaption, entity);
    step->changes.push_back({uuid, caption, text, true, 0});
    entries_.emplace(uuid, prjrename_name{std::move(caption), text, step->serial});
  }
  push(std::move(step));
}

void prjrename_names::push(std::unique_ptr<prjrename_step> step) {
  last_serial_ = step->serial;
  undo_.push_back(std::move(step));
  redo_.clear();
  changed();
}

void prjrename_names::undo() {
  if (undo_.empty()) return;
  std::unique_ptr<prjrename_step> step = std::move(undo_.back());
  undo_.pop_back();
  for (const prjrename_change& change : step->changes) {
    const auto it = entries_.find(change.uuid);
    if (it == entries_.end()) continue;
    if (change.inserted) {
      entries_.erase(it);
    } else {
      it->second.new_name = change.before;
      it->second.touched = change.previously_touched;
    }
  }
  redo_.push_back(std::move(step));
  changed();
}

void prjrename_names::redo() {
  if (redo_.empty()) return;
  std::unique_ptr<prjrename_step> step = std::move(redo_.back());
  redo_.pop_back();
  for (const prjrename_change& change : step->changes) {
    if (const auto it = entries_.find(change.uuid); it != entries_.end()) {
      it->second.new_name = change.after;
      it->second.touched = step->serial;
    } else {
      entries_.emplace(change.uuid, prjrename_name{change.before, change.after, step->serial});
    }
  }
  undo_.push_back(std::move(step));
  changed();
}

const prjrename_name* prjrename_names::find(tx_uuid uuid) const {
  const auto it = entries_.find(uuid);
  return it != entries_.end() ? &it->second : nullptr;
}

bool prjrename_names::changed_last(tx_uuid uuid) const {
  if (undo_.empty()) return false;
  const prjrename_name* entry = find(uuid);
  // An entry the top step had created and undo erased is in no applied step.
  return entry != nullptr && entry->touched == undo_.back()->serial;
}

}  // namespace tx
