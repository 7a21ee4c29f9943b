#include "tx_host/dialog/text_renderer.h"

#include <limits>

#include "tx/toolkit/bitmap.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::dialog {
namespace {

constexpr std::string_view kGutter = "│ ";

std::string guillemets(std::string_view text) {
  std::string out("«");
  out.append(text).append("»");
  return out;
}

// "Caption: value"; a caption that ends in its own sign ("N = ") is not given another.
std::string labeled(std::string_view caption, const std::string& value) {
  while (!caption.empty() && caption.back() == ' ') caption.remove_suffix(1);
  if (caption.empty()) return value;
  const bool signed_off = caption.back() == ':' || caption.back() == '=';
  std::string out(caption);
  out += signed_off ? " " : ": ";
  return out + value;
}

std::string checkbox_text(const element& e) {
  return text::checkbox(call(e.pair, &tx_checkbox_interface_2::checked),
                        field_caption(e).value_or(""));
}

std::string dropdown_text(const element& e, const vocabulary& words) {
  using table = tx_dropdown_interface_3;
  const std::int32_t count = bounded_count(call(e.pair, &table::item_count));
  std::vector<std::string> items;
  for (std::int32_t i = 0; i < count; ++i) {
    items.push_back(collect_text([&](tx_custom_pointer v) {
                      return call(e.pair, &table::item_text, i, v);
                    }).value_or(""));
  }
  return text::dropdown(field_caption(e).value_or(""), items, call(e.pair, &table::selected),
                        words);
}

std::string integer_text(const element& e) {
  using table = tx_integer_input_interface_6;
  return text::integer(field_caption(e).value_or(""), call(e.pair, &table::value),
                       call(e.pair, &table::minimum), call(e.pair, &table::maximum));
}

std::string input_text(const element& e, const vocabulary& words) {
  using table = tx_assisted_input_interface_3;
  const std::string value = collect_text([&](tx_custom_pointer v) {
                              call(e.pair, &table::text, v);
                              return true;
                            }).value_or("");
  std::vector<std::string> history;
  const std::int32_t count = bounded_count(call(e.pair, &table::history_count));
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> item =
        collect_text([&](tx_custom_pointer v) { return call(e.pair, &table::history_item, i, v); });
    if (item) history.push_back(*item);
  }
  return text::input(field_caption(e).value_or(""), value, history, words);
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
    line(text::opening(caption));
    out_.enter();
  }
  void leave_group(const element&) override {
    out_.leave();
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

  void line(std::string_view text) { out_.line(text); }
  // Starts the frame's content one level in.
  void enter_frame() noexcept { out_.enter(); }
  void leave_frame() noexcept { out_.leave(); }
  std::string take() { return out_.take(); }

 private:
  const vocabulary& words_;
  text::lines out_;
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
  return text::field(std::move(text), element_enabled(field), words);
}

std::string render_dialog(tx_custom_pointer docker, tx_custom_pointer buttons,
                          const vocabulary& words) {
  renderer out(words);
  const std::optional<std::string> caption = collect_text(
      [docker](tx_custom_pointer v) { return call(docker, &tx_docker_interface_92::caption, v); });
  out.line(text::opening(caption));
  out.enter_frame();
  walk(docker, out, walk_scope::shown);
  out.leave_frame();
  out.line("└");
  std::vector<std::string> shown;
  for (const button_entry& b : buttons_of(buttons)) {
    if (b.shown) shown.push_back(b.caption);
  }
  if (const std::string row = text::buttons(shown); !row.empty()) out.line(row);
  return out.take();
}

std::vector<element> shown_fields(tx_custom_pointer root) {
  field_list list;
  walk(root, list, walk_scope::shown);
  return std::move(list.fields);
}

namespace text {

std::string checkbox(bool on, std::string_view caption) {
  std::string out(on ? "[x] " : "[ ] ");
  return out.append(caption);
}

std::string dropdown(std::string_view caption, const std::vector<std::string>& items,
                     std::int32_t chosen, const vocabulary& words) {
  std::string shown(words.none);
  std::string listed;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (static_cast<std::int64_t>(i) == chosen) shown = items[i];
    listed += (i == 0 ? "" : " · ") + std::to_string(i + 1) + " " + items[i];
  }
  return labeled(caption, "[" + shown + "]") + (listed.empty() ? "" : "  (" + listed + ")");
}

std::string integer(std::string_view caption, std::int32_t value, std::int32_t low,
                    std::int32_t high) {
  std::string out = labeled(caption, std::to_string(value));
  if (low != std::numeric_limits<std::int32_t>::min() ||
      high != std::numeric_limits<std::int32_t>::max()) {
    out += "  (" + std::to_string(low) + "…" + std::to_string(high) + ")";
  }
  return out;
}

std::string input(std::string_view caption, std::string_view value,
                  const std::vector<std::string>& history, const vocabulary& words) {
  std::string listed;
  for (const std::string& item : history) {
    listed += (listed.empty() ? "" : " · ") + guillemets(item);
  }
  return labeled(caption, guillemets(value)) + "  " + std::string(words.history) + ": " +
         (listed.empty() ? std::string(words.none) : listed);
}

std::string field(std::string field, bool enabled, const vocabulary& words) {
  if (!enabled) field += "  (" + std::string(words.disabled) + ")";
  return field;
}

std::string opening(const std::optional<std::string>& caption) {
  return caption ? "┌ " + *caption : "┌";
}

std::string buttons(const std::vector<std::string>& shown_captions) {
  std::string row;
  for (std::size_t i = 0; i < shown_captions.size(); ++i) {
    row += row.empty() ? "[ " : " [ ";
    if (shown_captions[i].empty()) {
      row.append(1, '#').append(std::to_string(i + 1));
    } else {
      row += shown_captions[i];
    }
    row += " ]";
  }
  return row;
}

void lines::line(std::string_view text) {
  for (int i = 0; i < depth_; ++i) out_ += kGutter;
  out_ += text;
  while (!out_.empty() && out_.back() == ' ') out_.pop_back();
  out_ += '\n';
}

}  // namespace text

}  // namespace tx::host::dialog
