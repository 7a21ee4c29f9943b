#include "tx_host/project/nodes.h"

#include <algorithm>
#include <new>

void tx_lr_group::remove_child(std::size_t index) noexcept {
  std::move(children_ + index + 1, children_ + child_count_, children_ + index);
  --child_count_;
}

namespace tx::host {

std::u16string_view element_memory::keep_caption(std::u16string_view text) {
  char16_t* const start = captions.room(text.size() + 1);
  std::copy(text.begin(), text.end(), start);
  start[text.size()] = u'\0';
  return {start, text.size()};
}

namespace {

// Every entity of the project: itself, its collections, and every scene, group and layer ever
// made in it, those removed since included.
template <typename Visit>
void for_each_entity(tx_prj& project, Visit visit) {
  visit(static_cast<tx_entity&>(project));
  visit(static_cast<tx_entity&>(project.scenes_2d));
  visit(static_cast<tx_entity&>(project.scenes_3d));
  visit(static_cast<tx_entity&>(project.layouts));
  for (const auto& collection : project.plugin_collections) {
    visit(static_cast<tx_entity&>(*collection));
  }
  project.memory.scenes.for_each(
      [&visit](tx_scn& scene) { visit(static_cast<tx_entity&>(scene)); });
  project.memory.groups.for_each(
      [&visit](tx_lr_group& group) { visit(static_cast<tx_entity&>(group)); });
}

}  // namespace

void compact_captions(tx_prj& project) noexcept {
  std::size_t units = 0;
  for_each_entity(project, [&units](const tx_entity& entity) {
    if (!entity.caption.empty()) units += entity.caption.size() + 1;
  });
  chunked_buffer<char16_t> fresh(65536);
  char16_t* at = nullptr;
  try {
    at = fresh.room(units);
  } catch (const std::bad_alloc&) {
    return;  // the captions stay where they are
  }
  for_each_entity(project, [&at](tx_entity& entity) {
    if (entity.caption.empty()) {
      entity.caption = u"";
      return;
    }
    const std::size_t length = entity.caption.size();
    std::copy(entity.caption.begin(), entity.caption.end(), at);
    at[length] = u'\0';
    entity.caption = {at, length};
    at += length + 1;
  });
  project.memory.captions.swap(fresh);
}

}  // namespace tx::host
