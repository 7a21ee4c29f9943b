#include "tree/tree_nodes.h"

#include "tree/host_text.h"
#include "tx/host/txk_lr.h"
#include "tx/host/txk_scn_2d.h"

namespace tx {
namespace {

void pass(const prjrename_sink& sink, const std::u16string& text) {
  if (sink) sink(text.c_str());
}

}  // namespace

void prjrename_tree_lr_group::get_caption(const prjrename_sink& sink) const {
  if (lr_group != nullptr) pass(sink, host_caption(&tx_lr_group_get_wcaption, lr_group));
}

void prjrename_tree_scn::collect_checked(uuid_set& set) const {
  prjrename_tree_item::collect_checked(set);
  if (walk_children) {
    for (const auto& child : children) child->collect_checked(set);
    return;
  }
  // Each group and its direct children alone: a child group's own children come with it, as
  // it is in `groups` too, so every node is visited once whatever the depth.
  for (const prjrename_tree_lr_group* group : groups) {
    group->prjrename_tree_item::collect_checked(set);
    for (const auto& child : group->children) child->prjrename_tree_item::collect_checked(set);
  }
}

void prjrename_tree_scn::get_caption(const prjrename_sink& sink) const {
  if (scn != nullptr) pass(sink, host_caption(&tx_scn_get_wcaption, scn));
}

void prjrename_tree_scns2d::get_caption(const prjrename_sink& sink) const { pass(sink, caption); }

void prjrename_tree_scns3d::get_caption(const prjrename_sink& sink) const { pass(sink, caption); }

}  // namespace tx
