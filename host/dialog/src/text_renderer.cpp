#include "tx_host/dialog/text_renderer.h"

#include <limits>

#include "tx/toolkit/bitmap.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::dialog {
namespace {

constexpr std::string_view kGutter = "│ ";

std::string quoted(std::string_view text) {
  std::string out("«");
  out.append(text).append("»");
  return out;
}

// "Caption: value"; a caption that ends in its own sign ("N = ") is not given another.
std::string labeled(const element& e, const std::string& value) {
  std::string caption = field_caption(e).value_or("");
  while (!caption.empty() && caption.back() == ' ') caption.pop_back();
  if (caption.empty()) return value;
  const bool signed_off = caption.back() == ':' || caption.back() == '=';
  return caption + (signed_off ? " " : ": ") + value;
}

std::string checkbox_text(const element& e) {
  const bool on = call(e.pair, &tx_checkbox_interface_2::checked);
  return (on ? "[x] " : "[ ] ") + field_caption(e).value_or("");
}

std::string dropdown_text(const element& e, const vocabulary& words) {
  using table = tx_dropdown_interface_3;
  const std::int32_t count = call(e.pair, &table::item_count);
  const std::int32_t selected = call(e.pair, &table::selected);
  std::string chosen(words.none);
  std::string items;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string text = collect_text([&](tx_custom_pointer v) {
                               return call(e.pair, &table::item_text, i, v);
                             }).value_or("");
    if (i == selected) chosen = text;
    items += (i == 0 ? "" : " · ") + std::to_string(i + 1) + " " + text;
  }
  return labeled(e, "[" + chosen + "]") + (items.empty() ? "" : "  (" + items + ")");
}

std::string integer_text(const element& e) {
  using table = tx_integer_input_interface_6;
  const std::int32_t low = call(e.pair, &table::minimum);
  const std::int32_t high = call(e.pair, &table::maximum);
  std::string text = labeled(e, std::to_string(call(e.pair, &table::value)));
  if (low != std::numeric_limits<std::int32_t>::min() ||
      high != std::numeric_limits<std::int32_t>::max()) {
    text += "  (" + std::to_string(low) + "…" + std::to_string(high) + ")";
  }
  return text;
}

std::string input_text(const element& e, const vocabulary& words) {
  using table = tx_assisted_input_interface_3;
  const std::string value = collect_text([&](tx_custom_pointer v) {
                              call(e.pair, &table::text, v);
                              return true;
                            }).value_or("");
  std::string history;
  const std::int32_t count = call(e.pair, &table::history_count);
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> item =
        collect_text([&](tx_custom_pointer v) { return call(e.pair, &table::history_item, i, v); });
    if (item) history += (history.empty() ? "" : " · ") + quoted(*item);
  }
  return labeled(e, quoted(value)) + "  " + std::string(words.history) + ": " +
         (history.empty() ? std::string(words.none) : history);
}

std::string toolbar_text(tx_custom_pointer toolbar, const vocabulary& words) {
  return format_toolbar(words.tools, tool_values_of(toolbar));
}

std::string bitmap_text(tx_custom_pointer bitmap) {
  const std::optional<std::string> hint = collect_text(
      [bitmap](tx_custom_pointer v) { return call(bitmap, &tx_bitmap_interface_0::hint, v); });
  return hint ? "[image] " + *hint : "[image]";
}

class renderer final : public element_listener {
 public:
  explicit renderer(const vocabulary& words) : words_(words) {}

  void enter_group(const element& e) override {
    const std::optional<std::string> caption = collect_text(
        [&e](tx_custom_pointer v) { return call(e.pair, &tx_groupbox_interface_92::caption, v); });
    line(caption ? "┌ " + *caption : "┌");
    ++depth_;
  }
  void leave_group(const element&) override {
    --depth_;
    line("└");
  }
  void leaf(const element& e) override {
    if (is_field(e.kind)) {
      std::string text = std::to_string(++fields_) + ") " + render_field(e, words_);
      line(text);
      return;
    }
    switch (e.kind) {
      case element_kind::label:
        line(collect_text([&e](tx_custom_pointer v) {
               return call(e.pair, &tx_label_interface_2::text, v);
             }).value_or(""));
        break;
      case element_kind::outline:
        for (const std::string& row : render_rows(outline_reader(e.pair))) line(row);
        break;
      case element_kind::toolbar:
        line(toolbar_text(e.pair, words_));
        break;
      case element_kind::bitmap:
        line(bitmap_text(e.pair));
        break;
      default:
        line("[?]");  // an element of an interface this host does not know
        break;
    }
  }

  void line(std::string_view text) {
    for (int i = 0; i < depth_; ++i) out_ += kGutter;
    out_ += text;
    while (!out_.empty() && out_.back() == ' ') out_.pop_back();
    out_ += '\n';
  }
  // Starts the frame's content one level in.
  void enter_frame() noexcept { ++depth_; }
  void leave_frame() noexcept { --depth_; }
  std::string take() { return std::move(out_); }

 private:
  const vocabulary& words_;
  std::string out_;
  int depth_ = 0;
  int fields_ = 0;
};

class field_list final : public element_listener {
 public:
  void leaf(const element& e) override {
    if (is_field(e.kind)) fields.push_back(e);
  }
  std::vector<element> fields;
};

}  // namespace

std::string render_field(const element& field, const vocabulary& words) {
  std::string text;
  switch (field.kind) {
    case element_kind::checkbox:
      text = checkbox_text(field);
      break;
    case element_kind::dropdown:
      text = dropdown_text(field, words);
      break;
    case element_kind::integer_input:
      text = integer_text(field);
      break;
    case element_kind::assisted_input:
      text = input_text(field, words);
      break;
    default:
      return text;
  }
  if (!element_enabled(field)) text += "  (" + std::string(words.disabled) + ")";
  return text;
}

std::string render_dialog(tx_custom_pointer docker, tx_custom_pointer buttons,
                          const vocabulary& words) {
  renderer out(words);
  const std::optional<std::string> caption = collect_text(
      [docker](tx_custom_pointer v) { return call(docker, &tx_docker_interface_92::caption, v); });
  out.line(caption ? "┌ " + *caption : "┌");
  out.enter_frame();
  walk(docker, out, walk_scope::shown);
  out.leave_frame();
  out.line("└");
  // A button without a caption is shown by its position, as `press` finds it.
  std::string row;
  std::size_t position = 0;
  for (const button_entry& b : buttons_of(buttons)) {
    if (!b.shown) continue;
    ++position;
    row += row.empty() ? "[ " : " [ ";
    if (b.caption.empty()) {
      row.append(1, '#').append(std::to_string(position));
    } else {
      row += b.caption;
    }
    row += " ]";
  }
  if (!row.empty()) out.line(row);
  return out.take();
}

std::vector<element> shown_fields(tx_custom_pointer root) {
  field_list list;
  walk(root, list, walk_scope::shown);
  return std::move(list.fields);
}

}  // namespace tx::host::dialog
