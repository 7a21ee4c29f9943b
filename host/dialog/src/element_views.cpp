#include "tx_host/dialog/element_views.h"

#include <functional>

#include "tx/toolkit/bitmap.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/layout.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::dialog {
namespace {

template <class View>
constexpr tx_element_view_interface_0 kTable{
    &root_slot,
    [](void* self, std::uint32_t what) noexcept {
      View& v = object_of<View>(self);
      v.owner.changed(v.element, what);
    },
};

// The set_view slot of an element's interface.
template <class Table>
auto set_view_of(tx_custom_pointer element) noexcept {
  return table_of<Table>(element).set_view;
}

class attacher final : public element_listener {
 public:
  using give_fn = std::function<void(tx_custom_pointer, void (*)(void*, tx_custom_pointer))>;
  explicit attacher(give_fn give) : give_(std::move(give)) {}

  void enter_group(const element& e) override {
    give_(e.pair, set_view_of<tx_groupbox_interface_92>(e.pair));
  }
  void layout(const element& e) override {
    if (e.kind == element_kind::grid) {
      give_(e.pair, set_view_of<tx_grid_layout_interface_91>(e.pair));
    } else {
      give_(e.pair, set_view_of<tx_stack_layout_interface_67>(e.pair));
    }
  }
  void leaf(const element& e) override {
    switch (e.kind) {
      case element_kind::label:
        give_(e.pair, set_view_of<tx_label_interface_2>(e.pair));
        break;
      case element_kind::checkbox:
        give_(e.pair, set_view_of<tx_checkbox_interface_2>(e.pair));
        break;
      case element_kind::dropdown:
        give_(e.pair, set_view_of<tx_dropdown_interface_3>(e.pair));
        break;
      case element_kind::integer_input:
        give_(e.pair, set_view_of<tx_integer_input_interface_6>(e.pair));
        break;
      case element_kind::assisted_input:
        give_(e.pair, set_view_of<tx_assisted_input_interface_3>(e.pair));
        break;
      case element_kind::bitmap:
        give_(e.pair, set_view_of<tx_bitmap_interface_0>(e.pair));
        break;
      case element_kind::outline: {
        give_(e.pair, set_view_of<tx_outline_interface_32>(e.pair));
        const outline_reader reader(e.pair);
        for (const tx_custom_pointer column : reader.columns()) {
          give_(column, set_view_of<tx_string_outline_column_interface_10>(column));
        }
        if (present(reader.checks())) {
          give_(reader.checks(), set_view_of<tx_outline_checks_interface_1>(reader.checks()));
        }
        break;
      }
      case element_kind::toolbar:
        give_(e.pair, set_view_of<tx_toolbar_interface_6>(e.pair));
        for (const tool_entry& t : tools_of(e.pair)) {
          give_(t.tool, set_view_of<tx_action_tool_interface_0>(t.tool));
        }
        break;
      default:
        break;
    }
  }

 private:
  give_fn give_;
};

}  // namespace

void element_views::attach(tx_custom_pointer root) {
  attacher walker([this](tx_custom_pointer e, set_view_fn set_view) { give(e, set_view); });
  walk(root, walker, walk_scope::all);
}

void element_views::give(tx_custom_pointer element, set_view_fn set_view) {
  if (!present(element) || set_view == nullptr || !given_.insert(element.object).second) return;
  held_.push_back(std::make_unique<view>(*this, element.object, set_view));
  set_view(element.object, held_.back()->pair());
}

void element_views::detach() noexcept {
  for (const std::unique_ptr<view>& v : held_) v->set_view(v->element, tx_custom_pointer{});
  held_.clear();
  given_.clear();
}

void element_views::changed(void* element, std::uint32_t what) noexcept {
  changes_ |= what;
  if (!listener_) return;
  try {
    listener_(element, what);
  } catch (...) {
    // Out of memory in the listener: the change is still gathered above.
  }
}

tx_custom_pointer element_views::view::pair() noexcept { return {&kTable<view>, object_half()}; }

std::span<const interface_entry> element_views::view::interfaces() const noexcept {
  static constexpr interface_entry entries[]{{TX_ELEMENT_VIEW_INTERFACE_0, &kTable<view>}};
  return entries;
}

std::uint32_t element_views::take_changes() noexcept {
  const std::uint32_t changes = changes_;
  changes_ = 0;
  return changes;
}

}  // namespace tx::host::dialog
