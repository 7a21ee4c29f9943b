#include "dialog_window.h"

#include <algorithm>

#include "field_controls.h"
#include "native.h"
#include "outline_control.h"
#include "toolbar_control.h"
#include "tx/toolkit/button_box.h"
#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::gui {
namespace {

using dialog::element_kind;
namespace text = dialog::text;

// The window reads what the plug-in told after the message that caused it.
constexpr UINT kRefresh = WM_APP + 1;
// Button i of the button box has this id plus i.
constexpr int kFirstButton = 100;
// Deeper than any real dialog; more cells than any real grid.
constexpr int kMaxDepth = 64;
constexpr std::int32_t kMaxLines = 64;

// Lengths in dialog units: the margin around the content, a button's least size (the gap
// between controls is the layout's, window_layout.h).
constexpr int kMargin = 7;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;

// An empty modal dialog in the shell dialog font, resizable; controls are added at run time.
std::vector<WORD> dialog_template() {
  std::vector<WORD> t;
  const DWORD style =
      WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME | DS_SHELLFONT;
  t.push_back(LOWORD(style));
  t.push_back(HIWORD(style));
  t.push_back(0);  // extended style
  t.push_back(0);
  t.push_back(0);                                                     // no controls
  for (const WORD position : {0, 0, 100, 50}) t.push_back(position);  // set once laid out
  t.push_back(0);                                                     // no menu
  t.push_back(0);                                                     // the standard dialog class
  t.push_back(0);                                                     // no title yet
  t.push_back(8);                                                     // 8 points
  for (const wchar_t c : std::wstring_view(L"MS Shell Dlg 2")) t.push_back(static_cast<WORD>(c));
  t.push_back(0);
  return t;
}

template <class F>
void for_each_leaf(const window_node& node, F&& f) {
  if (node.leaf) f(*node.leaf, node);
  for (const auto& child : node.children) for_each_leaf(*child, f);
}

}  // namespace

dialog_window::dialog_window(tx_custom_pointer docker, tx_custom_pointer buttons,
                             std::int32_t language_offset, HWND owner)
    : docker_(docker), buttons_(buttons), language_(language_offset), owner_(owner) {
  create_frame();
  build();
  views_.set_listener([this](void* element, std::uint32_t what) { changed(element, what); });
  views_.attach(docker_);
  align_captions();
  fit();
  layout();
  if (owner_ != nullptr) {
    owner_was_enabled_ = IsWindowEnabled(owner_) != FALSE;
    EnableWindow(owner_, FALSE);
  }
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  UpdateWindow(window_);
}

dialog_window::~dialog_window() {
  views_.detach();
  root_.reset();
  if (owner_ != nullptr && owner_was_enabled_) EnableWindow(owner_, TRUE);
  DestroyWindow(window_);
  if (bold_font_ != nullptr) DeleteObject(bold_font_);
}

void dialog_window::create_frame() {
  const std::vector<WORD> t = dialog_template();
  window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                       reinterpret_cast<LPCDLGTEMPLATEW>(t.data()), owner_,
                                       &dialog_window::procedure, reinterpret_cast<LPARAM>(this));
  const std::optional<std::string> caption = dialog::collect_text(
      [this](tx_custom_pointer v) { return call(docker_, &tx_docker_interface_92::caption, v); });
  set_window_text(window_, caption.value_or(""));
  metrics_.font = reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0));
  RECT units{0, 0, 4, 8};
  MapDialogRect(window_, &units);
  metrics_.base_x = std::max<int>(units.right, 1);
  metrics_.base_y = std::max<int>(units.bottom, 1);
  LOGFONTW bold{};
  GetObjectW(metrics_.font, sizeof bold, &bold);
  bold.lfWeight = FW_BOLD;
  bold_font_ = CreateFontIndirectW(&bold);
  metrics_.bold_font = bold_font_;
}

void dialog_window::build() {
  root_ = std::make_unique<window_node>();
  root_->element = dialog::identify(docker_);
  build_children(*root_, 0);
  // The buttons, in the box's order; the accepting one is the default.
  int defined = 0;
  for (const dialog::button_entry& b : dialog::buttons_of(buttons_)) {
    if (!b.shown) continue;
    const bool accepting = dialog::role_of(b.caption, language_) == dialog::button_role::accept;
    HWND made = CreateWindowExW(
        0, L"BUTTON", wide(b.caption).c_str(),
        WS_CHILD | WS_VISIBLE | WS_TABSTOP |
            (accepting && defined == 0 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
        0, 0, 0, 0, window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstButton + b.index)),
        GetModuleHandleW(nullptr), nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(metrics_.font), FALSE);
    if (accepting && defined == 0) {
      defined = kFirstButton + b.index;
      SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(defined), 0);
    }
    buttons_shown_.emplace_back(made, b.index);
  }
  nodes_.clear();
  register_node(*root_);
}

std::unique_ptr<window_node> dialog_window::build_node(tx_custom_pointer any, int depth) {
  auto node = std::make_unique<window_node>();
  node->element = dialog::identify(any);
  const dialog::element& e = node->element;
  switch (e.kind) {
    case element_kind::grid:
    case element_kind::stack:
    case element_kind::docker:
      build_children(*node, depth);
      break;
    case element_kind::groupbox: {
      const std::optional<std::string> caption = dialog::collect_text([&e](tx_custom_pointer v) {
        return call(e.pair, &tx_groupbox_interface_92::caption, v);
      });
      node->frame = make_child(window_, L"BUTTON", caption.value_or(""), BS_GROUPBOX, metrics_);
      build_children(*node, depth);
      // Under the controls it frames.
      SetWindowPos(node->frame, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      break;
    }
    case element_kind::outline:
      node->leaf = std::make_unique<outline_control>(window_, e.pair, metrics_);
      break;
    case element_kind::toolbar:
      node->leaf = std::make_unique<toolbar_control>(window_, e.pair, metrics_);
      break;
    default:
      node->leaf = make_plain_control(window_, e, metrics_);
      break;
  }
  if (node->leaf) {
    node->shown = dialog::element_visible(e);
    if (!node->shown) node->leaf->show(false);
  }
  return node;
}

void dialog_window::build_children(window_node& node, int depth) {
  if (depth > kMaxDepth) return;
  const tx_custom_pointer pair = node.element.pair;
  auto add = [&](const dialog::element_collector& found, int row, int column) {
    for (const tx_custom_pointer child : found.elements()) {
      std::unique_ptr<window_node> built = build_node(child, depth + 1);
      built->row = row;
      built->column = column;
      node.children.push_back(std::move(built));
    }
  };
  switch (node.element.kind) {
    case element_kind::docker: {
      dialog::element_collector content;
      call(pair, &tx_docker_interface_92::visit_content, content.pair());
      add(content, 0, 0);
      break;
    }
    case element_kind::groupbox: {
      dialog::element_collector content;
      call(pair, &tx_groupbox_interface_92::visit_content, content.pair());
      add(content, 0, 0);
      break;
    }
    case element_kind::stack: {
      using table = tx_stack_layout_interface_67;
      const std::int32_t shown = call(pair, &table::shown);
      if (shown < 0 || shown >= std::clamp(call(pair, &table::entry_count), 0, kMaxLines)) break;
      dialog::element_collector entry;
      call(pair, &table::visit_entry, shown, entry.pair());
      add(entry, 0, 0);
      break;
    }
    case element_kind::grid: {
      using table = tx_grid_layout_interface_91;
      const std::int32_t rows = std::clamp(call(pair, &table::row_count), 0, kMaxLines);
      const std::int32_t columns = std::clamp(call(pair, &table::column_count), 0, kMaxLines);
      // Visit cell finds (row, column) at index row + column, right for a single row or
      // column only; a grid of several rows and columns is read by its true cells, with spans.
      const bool single_line = rows <= 1 || columns <= 1;
      for (std::int32_t r = 0; r < rows; ++r) {
        for (std::int32_t c = 0; c < columns; ++c) {
          dialog::element_collector cell;
          std::int32_t span_rows = 1;
          std::int32_t span_columns = 1;
          if (single_line) {
            call(pair, &table::visit_cell, r, c, cell.pair());
          } else {
            call(pair, &table::visit_grid_cell, r, c, &span_rows, &span_columns, cell.pair());
          }
          const std::size_t first = node.children.size();
          add(cell, r, c);
          for (std::size_t i = first; i < node.children.size(); ++i) {
            node.children[i]->row_span = std::clamp(span_rows, 1, rows - r);
            node.children[i]->column_span = std::clamp(span_columns, 1, columns - c);
          }
        }
      }
      break;
    }
    default:
      break;
  }
}

void dialog_window::register_node(window_node& node) {
  nodes_[node.element.pair.object] = &node;
  if (node.element.kind == element_kind::outline) {
    const dialog::outline_reader reader(node.element.pair);
    for (const tx_custom_pointer column : reader.columns()) nodes_[column.object] = &node;
    if (present(reader.checks())) nodes_[reader.checks().object] = &node;
  } else if (node.element.kind == element_kind::toolbar) {
    for (const dialog::tool_entry& t : dialog::tools_of(node.element.pair)) {
      nodes_[t.tool.object] = &node;
    }
  }
  for (const auto& child : node.children) register_node(*child);
}

void dialog_window::align_captions() {
  // The fields in the first column of their grid share one caption width across the dialog;
  // a field further right keeps its own.
  std::vector<field_control*> first_column;
  int widest = 0;
  auto visit = [&](auto&& self, window_node& node) -> void {
    for (const auto& child : node.children) {
      if (auto* field = dynamic_cast<field_control*>(child->leaf.get())) {
        const int width = field->caption_width(metrics_);
        if (child->column == 0) {
          first_column.push_back(field);
          widest = std::max(widest, width);
        } else {
          field->set_caption_column(width);
        }
      }
      self(self, *child);
    }
  };
  visit(visit, *root_);
  for (field_control* field : first_column) field->set_caption_column(widest);
}

size_request dialog_window::content_request() const { return request(*root_, metrics_); }

void dialog_window::fit() {
  const metrics& m = metrics_;
  const size_request content = content_request();
  int buttons_width = 0;
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    const int width =
        std::max(m.dlu_x(kButtonWidth), text_width(m, window_text(shown_button)) + m.dlu_x(10));
    buttons_width += width + (buttons_width > 0 ? m.dlu_x(layout_gap) : 0);
  }
  const int button_row = buttons_shown_.empty() ? 0 : m.dlu_y(kMargin) + m.dlu_y(kButtonHeight);
  RECT wanted{0, 0, std::max(content.width, buttons_width) + 2 * m.dlu_x(kMargin),
              content.height + button_row + 2 * m.dlu_y(kMargin)};
  AdjustWindowRectEx(&wanted, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE)));
  minimum_ = {wanted.right - wanted.left, wanted.bottom - wanted.top};
  RECT now{};
  GetWindowRect(window_, &now);
  const bool first = !IsWindowVisible(window_);
  const int width = first ? minimum_.cx : std::max<int>(now.right - now.left, minimum_.cx);
  const int height = first ? minimum_.cy : std::max<int>(now.bottom - now.top, minimum_.cy);
  if (first) {
    // Centred on the screen's work area, as a dialog without a visible owner opens.
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    SetWindowPos(window_, nullptr,
                 work.left + std::max<int>(0, (work.right - work.left - width) / 2),
                 work.top + std::max<int>(0, (work.bottom - work.top - height) / 2), width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  } else if (width != now.right - now.left || height != now.bottom - now.top) {
    SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void dialog_window::layout() {
  const metrics& m = metrics_;
  RECT client{};
  GetClientRect(window_, &client);
  const int margin_x = m.dlu_x(kMargin);
  const int margin_y = m.dlu_y(kMargin);
  const int button_height = m.dlu_y(kButtonHeight);
  const int button_row = buttons_shown_.empty() ? 0 : margin_y + button_height;
  place(*root_,
        RECT{client.left + margin_x, client.top + margin_y, client.right - margin_x,
             client.bottom - margin_y - button_row},
        m);
  // The buttons at the bottom right, in the box's order.
  int right = client.right - margin_x;
  for (auto it = buttons_shown_.rbegin(); it != buttons_shown_.rend(); ++it) {
    const int width =
        std::max(m.dlu_x(kButtonWidth), text_width(m, window_text(it->first)) + m.dlu_x(10));
    MoveWindow(it->first, right - width, client.bottom - margin_y - button_height, width,
               button_height, TRUE);
    right -= width + m.dlu_x(layout_gap);
  }
  InvalidateRect(window_, nullptr, TRUE);
}

void dialog_window::press(std::int32_t index) {
  if (closed_with_) return;
  const bool may_close = call(buttons_, &tx_button_box_interface_2::press, index);
  if (!may_close && index >= 0) return;
  closed_with_ = index;
  if (owner_ != nullptr && owner_was_enabled_) EnableWindow(owner_, TRUE);
  ShowWindow(window_, SW_HIDE);
}

void dialog_window::changed(void* element, std::uint32_t what) {
  pending_[element] |= what;
  if (!refresh_posted_ && window_ != nullptr) {
    refresh_posted_ = PostMessageW(window_, kRefresh, 0, 0) != FALSE;
  }
}

void dialog_window::refresh_pending() {
  refresh_posted_ = false;
  const std::unordered_map<void*, std::uint32_t> pending = std::move(pending_);
  pending_.clear();
  bool rebuilt = false;
  for (const auto& [element, what] : pending) {
    const auto found = nodes_.find(element);
    if (found == nodes_.end()) continue;
    window_node& node = *found->second;
    const element_kind kind = node.element.kind;
    if ((kind == element_kind::stack || kind == element_kind::grid) &&
        (what & TX_CHANGED_LAYOUT) != 0) {
      node.children.clear();
      build_children(node, 0);
      rebuilt = true;
    } else if (kind == element_kind::groupbox && (what & TX_CHANGED_TEXTS) != 0) {
      set_window_text(node.frame, dialog::collect_text([&node](tx_custom_pointer v) {
                                    return call(node.element.pair,
                                                &tx_groupbox_interface_92::caption, v);
                                  }).value_or(""));
    }
  }
  if (rebuilt) {
    nodes_.clear();
    register_node(*root_);
  }
  bool resize = rebuilt;
  for (const auto& [element, what] : pending) {
    const auto found = nodes_.find(element);
    if (found == nodes_.end() || !found->second->leaf) continue;
    window_node& node = *found->second;
    node.leaf->refresh(what);
    if ((what & TX_CHANGED_STATE) != 0) {
      const bool visible = dialog::element_visible(node.element);
      if (visible != node.shown) {
        node.shown = visible;
        node.leaf->show(visible);
        resize = true;
      }
    }
    if ((what & (TX_CHANGED_TEXTS | TX_CHANGED_ITEMS)) != 0) resize = true;
  }
  if (resize) {
    align_captions();
    fit();
    layout();
  }
}

void dialog_window::pump() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (window_ == nullptr || !IsDialogMessageW(window_, &message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

std::int32_t dialog_window::run_modal() {
  MSG message{};
  while (!closed_with_) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) break;
    if (!IsDialogMessageW(window_, &message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  return closed_with_.value_or(-1);
}

INT_PTR CALLBACK dialog_window::procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, l);
    return TRUE;
  }
  auto* self = reinterpret_cast<dialog_window*>(GetWindowLongPtrW(window, DWLP_USER));
  if (self == nullptr) return FALSE;
  return self->handle_message(message, w, l);
}

INT_PTR dialog_window::handle_message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND: {
      const int id = LOWORD(w);
      const UINT code = HIWORD(w);
      HWND from = reinterpret_cast<HWND>(l);
      for (const auto& [shown_button, index] : buttons_shown_) {
        if (from == shown_button || (from == nullptr && id == kFirstButton + index)) {
          if (code == BN_CLICKED) press(index);
          return TRUE;
        }
      }
      if (id == IDCANCEL && (from == nullptr || GetParent(from) != window_)) {
        press(-1);  // Esc acts as the frame's close box
        return TRUE;
      }
      if (root_ == nullptr) return FALSE;
      LRESULT result = 0;
      bool handled = false;
      for_each_leaf(*root_, [&](control& c, const window_node&) {
        if (!handled) handled = c.on_command(from, code, result);
      });
      return TRUE;
    }
    case WM_NOTIFY: {
      if (root_ == nullptr) return FALSE;
      const auto& header = *reinterpret_cast<const NMHDR*>(l);
      LRESULT result = 0;
      bool handled = false;
      for_each_leaf(*root_, [&](control& c, const window_node&) {
        if (!handled) handled = c.on_notify(header, result);
      });
      if (!handled) return FALSE;
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, result);
      return TRUE;
    }
    case WM_CLOSE:
      press(-1);
      return TRUE;
    case WM_SIZE:
      if (root_ != nullptr) layout();
      return TRUE;
    case WM_GETMINMAXINFO: {
      auto* info = reinterpret_cast<MINMAXINFO*>(l);
      info->ptMinTrackSize = {minimum_.cx, minimum_.cy};
      return TRUE;
    }
    case kRefresh:
      refresh_pending();
      return TRUE;
    default:
      return FALSE;
  }
}

std::string dialog_window::render() const {
  const dialog::vocabulary& words = dialog::vocabulary_for(language_);
  text::lines out;
  const std::string title = window_text(window_);
  out.line(text::opening(title.empty() ? std::nullopt : std::optional<std::string>(title)));
  out.enter();
  int fields = 0;
  auto print = [&](auto&& self, const window_node& node) -> void {
    if (!node.shown) return;
    if (node.leaf) {
      std::vector<std::string> lines;
      node.leaf->print(lines, words);
      for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == 0 && node.leaf->is_field()) {
          out.line(std::to_string(++fields) + ") " + lines[i]);
        } else {
          out.line(lines[i]);
        }
      }
      return;
    }
    if (node.element.kind == element_kind::groupbox) {
      const std::string caption = window_text(node.frame);
      out.line(text::opening(caption.empty() ? std::nullopt : std::optional<std::string>(caption)));
      out.enter();
      for (const auto& child : node.children) self(self, *child);
      out.leave();
      out.line("└");
      return;
    }
    for (const auto& child : node.children) self(self, *child);
  };
  print(print, *root_);
  out.leave();
  out.line("└");
  std::vector<std::string> captions;
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    if (marked_visible(shown_button)) captions.push_back(window_text(shown_button));
  }
  if (const std::string row = text::buttons(captions); !row.empty()) out.line(row);
  return out.take();
}

std::vector<field_control*> dialog_window::fields() const {
  std::vector<field_control*> found;
  for_each_leaf(*root_, [&](control& c, const window_node& node) {
    if (auto* field = dynamic_cast<field_control*>(&c); field != nullptr && node.shown) {
      found.push_back(field);
    }
  });
  return found;
}

dropdown_control* dialog_window::operation_selector() const {
  // The drop-down that comes right before the stacked panels.
  dropdown_control* last = nullptr;
  dropdown_control* selector = nullptr;
  auto visit = [&](auto&& self, const window_node& node) -> void {
    if (!node.shown || selector != nullptr) return;
    if (node.element.kind == element_kind::stack && last != nullptr) {
      selector = last;
      return;
    }
    if (auto* d = dynamic_cast<dropdown_control*>(node.leaf.get())) last = d;
    for (const auto& child : node.children) self(self, *child);
  };
  visit(visit, *root_);
  return selector;
}

outline_control* dialog_window::outline() const {
  outline_control* found = nullptr;
  for_each_leaf(*root_, [&](control& c, const window_node& node) {
    if (found == nullptr && node.shown) found = dynamic_cast<outline_control*>(&c);
  });
  return found;
}

std::vector<toolbar_control*> dialog_window::toolbars() const {
  std::vector<toolbar_control*> found;
  for_each_leaf(*root_, [&](control& c, const window_node& node) {
    if (auto* t = dynamic_cast<toolbar_control*>(&c); t != nullptr && node.shown) {
      found.push_back(t);
    }
  });
  return found;
}

std::vector<dialog_window::button> dialog_window::shown_buttons() const {
  std::vector<button> found;
  for (const auto& [window, index] : buttons_shown_) {
    if (marked_visible(window)) found.push_back({window, window_text(window), index});
  }
  return found;
}

}  // namespace tx::host::gui
