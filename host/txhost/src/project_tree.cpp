#include "project_tree.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"
#include "tx/host/txk_lr.h"
#include "tx/host/txk_prj.h"
#include "tx/host/txk_scn_2d.h"
#include "tx/host/txk_scn_3d.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"
#include "tx_host/txhost/listing_limit.h"

namespace tx::host {
namespace {

// A caption asked for as a plug-in asks: through a string adapter that fills our string.
template <typename Handle>
std::string caption_text(Handle* handle, void (*get)(Handle*, tx_string_adp*)) {
  std::u16string caption;
  tx_string_adp* adapter =
      tx_string_adp_create(&caption, [](void* target, const char16_t* text, size_t length) {
        static_cast<std::u16string*>(target)->assign(text, length);
      });
  get(handle, adapter);
  tx_string_adp_destroy(adapter);
  return to_utf8(caption);
}

// The same, quoted.
template <typename Handle>
std::string caption_of(Handle* handle, void (*get)(Handle*, tx_string_adp*)) {
  return dialog::quoted(caption_text(handle, get));
}

std::string uuid_of(tx_entities* holder) {
  return uuid_to_text(tx_entity_get_uuid(tx_entities_safe_upcast(holder)));
}

// Goes through the scenes and layer groups of a project in the host's order.
class element_walker {
 public:
  virtual ~element_walker() = default;

  void walk(tx_prj* project) {
    collection(tx_prj_get_scns_2d_ptr(project));
    tx_scns_3d* const scenes_3d = tx_prj_get_scns_3d_ptr(project);
    for (uint32_t i = 0; i < tx_scns_3d_get_size(scenes_3d); ++i)
      scene(tx_scns_3d_get(scenes_3d, i));
    collection(tx_prj_get_layouts_data_ptr(project));
    for (int32_t i = 0; i < tx_prj_get_plugin_scns_2d_count(project); ++i) {
      collection(tx_prj_get_plugin_scns_2d_ptr(project, i));
    }
  }

 protected:
  virtual void element(tx_entities* holder, std::string caption) = 0;

 private:
  void collection(tx_scns_2d* scenes) {
    for (uint32_t i = 0; i < tx_scns_2d_get_size(scenes); ++i) scene(tx_scns_2d_get(scenes, i));
  }
  void scene(tx_scn* scene) {
    element(tx_scn_safe_upcast(scene), caption_text(scene, &tx_scn_get_wcaption));
    if (tx_lr_group* const root = tx_scn_get_lr_group_ptr(scene)) children(root);
  }
  void children(tx_lr_group* group) {
    for (uint32_t i = 0; i < tx_lr_group_get_count_child(group); ++i) {
      tx_lr_group* const child = tx_lr_group_get_child_by_index(group, i);
      element(tx_lr_group_safe_upcast(child), caption_text(child, &tx_lr_group_get_wcaption));
      children(child);
    }
  }
};

class element_list final : public element_walker {
 public:
  std::vector<project_element> elements;

 private:
  void element(tx_entities* holder, std::string caption) override {
    elements.push_back({tx_entity_get_uuid(tx_entities_safe_upcast(holder)), std::move(caption)});
  }
};

class tree_printer {
 public:
  tree_printer(std::FILE* out, std::size_t listed) : stream_(out), listed_(listed) {}

  void print(tx_prj* project) {
    element(0, [&] {
      return line_parts<3>{
          "project", caption_of(tx_prj_safe_upcast(project), &tx_entity_get_wcaption),
          tx_options_get_invert_layers() ? "(invert_layers: yes)" : "(invert_layers: no)"};
    });
    scenes_2d("scenes_2d", "", tx_prj_get_scns_2d_ptr(project));
    tx_scns_3d* const scenes_3d = tx_prj_get_scns_3d_ptr(project);
    element(0, [&] {
      return line_parts<2>{
          "scenes_3d", caption_of(tx_scns_3d_safe_upcast(scenes_3d), &tx_entities_get_wcaption)};
    });
    for (uint32_t i = 0; i < tx_scns_3d_get_size(scenes_3d); ++i) {
      scene(tx_scns_3d_get(scenes_3d, i));
    }
    scenes_2d("layouts", "", tx_prj_get_layouts_data_ptr(project));
    for (int32_t i = 0; i < tx_prj_get_plugin_scns_2d_count(project); ++i) {
      tx_scns_2d* const collection = tx_prj_get_plugin_scns_2d_ptr(project, i);
      const char* const meta_id = tx_scns_2d_get_meta_id(collection);
      scenes_2d("plugin_collection", meta_id != nullptr ? meta_id : "", collection);
    }
    if (hidden_ > 0) out_ += more_line("", hidden_, "elements");
    flush();
  }

 private:
  template <std::size_t N>
  using line_parts = std::array<std::string, N>;

  // An element's line, made by `make` (its parts) only while the listing is shown: past the
  // limit the walk only counts what it leaves out, without asking for captions.
  template <typename Make>
  void element(std::size_t level, Make make) {
    if (printed_ >= listed_) {
      ++hidden_;
      return;
    }
    const auto made = make();
    line(level, made);
  }

  // The parts of one line, separated by spaces, indented two spaces a level.
  // Empty parts are left out.
  void line(std::size_t level, std::span<const std::string> parts) {
    out_.append(2 * level, ' ');
    bool first = true;
    for (const std::string& part : parts) {
      if (part.empty()) continue;
      if (!first) out_ += ' ';
      out_ += part;
      first = false;
    }
    out_ += '\n';
    ++printed_;
    if (out_.size() >= kPiece) flush();
  }

  // The listing goes out in pieces: a million lines are never held at once.
  void flush() {
    std::fwrite(out_.data(), 1, out_.size(), stream_);
    out_.clear();
  }

  // A 2D collection: its kind, its meta id (empty for the project's own) and its caption.
  void scenes_2d(std::string_view kind, std::string_view meta_id, tx_scns_2d* collection) {
    element(0, [&] {
      return line_parts<3>{
          std::string(kind), std::string(meta_id),
          caption_of(tx_scns_2d_safe_upcast(collection), &tx_entities_get_wcaption)};
    });
    for (uint32_t i = 0; i < tx_scns_2d_get_size(collection); ++i) {
      scene(tx_scns_2d_get(collection, i));
    }
  }

  void scene(tx_scn* scene) {
    tx_lr_group* const root = tx_scn_get_lr_group_ptr(scene);
    element(1, [&] {
      return line_parts<4>{"scene", uuid_of(tx_scn_safe_upcast(scene)),
                           caption_of(scene, &tx_scn_get_wcaption),
                           root == nullptr ? "(no layer group)" : ""};
    });
    if (root != nullptr) children(root, 2);
  }

  void children(tx_lr_group* group, std::size_t level) {
    for (uint32_t i = 0; i < tx_lr_group_get_count_child(group); ++i) {
      tx_lr_group* const child = tx_lr_group_get_child_by_index(group, i);
      element(level, [&] {
        return line_parts<4>{tx_lr_group_is_group(child) ? "group" : "layer",
                             uuid_of(tx_lr_group_safe_upcast(child)),
                             caption_of(child, &tx_lr_group_get_wcaption),
                             tx_lr_group_get_expanded(child) ? "expanded" : "collapsed"};
      });
      children(child, level + 1);
    }
  }

  static constexpr std::size_t kPiece = 64 * 1024;

  std::FILE* stream_;
  std::size_t listed_;
  std::size_t printed_ = 0;
  std::size_t hidden_ = 0;
  std::string out_;
};

}  // namespace

void print_project(tx_prj* project, std::FILE* out, std::size_t listed) {
  tree_printer(out, listed).print(project);
  std::fflush(out);
}

std::vector<project_element> project_elements(tx_prj* project) {
  element_list list;
  list.walk(project);
  return std::move(list.elements);
}

}  // namespace tx::host
