#include "tx_host/dialog/outline_reader.h"

#include <algorithm>
#include <charconv>

#include "tx/toolkit/outline.h"
#include "tx_host/dialog/elements.h"

namespace tx::host::dialog {
namespace {

using outline_table = tx_outline_interface_32;
using column_table = tx_string_outline_column_interface_10;
using checks_table = tx_outline_checks_interface_1;

// Deeper than any project's tree: a row that is its own descendant stops here.
constexpr std::size_t kMaxRowDepth = 256;
constexpr std::string_view kStep = " / ";

std::size_t display_width(std::string_view utf8) noexcept {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

void pad_to(std::string& text, std::size_t width) {
  const std::size_t shown = display_width(text);
  if (shown < width) text.append(width - shown, ' ');
}

void trim_right(std::string& text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
}

// "{N}" at the start of a path, followed by a step separator or the end: N; otherwise nothing.
std::optional<std::int32_t> positional_step(std::string_view rest) {
  if (!rest.starts_with('{')) return std::nullopt;
  const std::size_t close = rest.find('}');
  if (close == std::string_view::npos) return std::nullopt;
  const std::string_view after = rest.substr(close + 1);
  if (!after.empty() && !after.starts_with(kStep)) return std::nullopt;
  std::int32_t n = 0;
  const char* first = rest.data() + 1;
  const char* last = rest.data() + close;
  const auto [end, error] = std::from_chars(first, last, n);
  if (error != std::errc() || end != last || first == last || n < 1) return std::nullopt;
  return n;
}

class row_finder {
 public:
  explicit row_finder(const outline_reader& reader) : reader_(reader) {}

  // Every row whose path from `parent` is `rest`, up to two.
  void by_path(tx_custom_pointer parent, std::string_view rest) {
    if (path_.size() >= kMaxRowDepth) return;
    const std::optional<std::int32_t> position = positional_step(rest);
    const std::int32_t count = reader_.row_count(parent);
    for (std::int32_t i = 0; i < count && found_.size() < 2; ++i) {
      const tx_custom_pointer row = reader_.row(parent, i);
      const std::string caption = reader_.caption(row);
      if (rest == caption) found(row);
      if (rest.starts_with(caption) && rest.substr(caption.size()).starts_with(kStep)) {
        descend(row, rest.substr(caption.size() + kStep.size()));
      }
      if (position && *position == i + 1) {
        const std::size_t close = rest.find('}');
        if (close + 1 == rest.size()) {
          found(row);
        } else {
          descend(row, rest.substr(close + 1 + kStep.size()));
        }
      }
    }
  }

  // Every row anywhere captioned `caption`, up to two.
  void by_caption(tx_custom_pointer parent, std::string_view caption) {
    if (path_.size() >= kMaxRowDepth) return;
    const std::int32_t count = reader_.row_count(parent);
    for (std::int32_t i = 0; i < count && found_.size() < 2; ++i) {
      const tx_custom_pointer row = reader_.row(parent, i);
      if (reader_.caption(row) == caption) found(row);
      path_.push_back(row);
      by_caption(row, caption);
      path_.pop_back();
    }
  }

  const std::vector<found_row>& matches() const noexcept { return found_; }

 private:
  void found(tx_custom_pointer row) {
    if (found_.size() < 2 && !std::any_of(found_.begin(), found_.end(),
                                          [row](const found_row& f) { return same(f.row, row); })) {
      found_.push_back({row, path_, {}});
    }
  }
  void descend(tx_custom_pointer row, std::string_view rest) {
    path_.push_back(row);
    by_path(row, rest);
    path_.pop_back();
  }

  const outline_reader& reader_;
  std::vector<tx_custom_pointer> path_;
  std::vector<found_row> found_;
};

class rows_printer {
 public:
  explicit rows_printer(const outline_reader& reader)
      : reader_(reader), columns_(reader.columns().size()) {}

  std::vector<std::string> print() {
    rows(tx_custom_pointer{}, 0);
    // The header's first cell stands where a top-level row's text starts.
    std::vector<std::string> header(std::max<std::size_t>(columns_, 1));
    bool any_header = false;
    for (std::size_t c = 0; c < columns_; ++c) {
      const std::optional<std::string> text = reader_.header(c);
      any_header = any_header || text.has_value();
      header[c] = (c == 0 ? std::string(lead_width(0), ' ') : "") + text.value_or("");
    }
    std::vector<std::size_t> widths(header.size(), 0);
    for (std::size_t c = 0; c < header.size(); ++c) {
      if (any_header) widths[c] = display_width(header[c]);
      for (const auto& row : rows_) widths[c] = std::max(widths[c], display_width(row.cells[c]));
    }
    std::vector<std::string> lines;
    lines.reserve(rows_.size() + 1);
    if (any_header) lines.push_back(line("   ", header, widths));
    for (const auto& row : rows_) lines.push_back(line(row.markers, row.cells, widths));
    return lines;
  }

 private:
  struct printed_row {
    std::string markers;
    std::vector<std::string> cells;
  };

  std::size_t lead_width(std::size_t depth) const noexcept {
    return 2 * depth + 2 + (present(reader_.checks()) ? 4 : 0);
  }

  void rows(tx_custom_pointer parent, std::size_t depth) {
    if (depth >= kMaxRowDepth) return;
    const std::int32_t count = reader_.row_count(parent);
    for (std::int32_t i = 0; i < count; ++i) {
      const tx_custom_pointer row = reader_.row(parent, i);
      const bool has_children = reader_.row_count(row) > 0;
      const bool expanded = has_children && reader_.expanded(row);
      printed_row printed;
      printed.markers =
          std::string(reader_.selected(row) ? ">" : " ") + (reader_.faulty(row) ? "!" : " ") + " ";
      std::string lead(2 * depth, ' ');
      lead += !has_children ? "  " : expanded ? "▾ " : "▸ ";
      if (present(reader_.checks())) {
        const bool on = reader_.checked(row);
        lead += reader_.check_enabled(row) ? (on ? "[x] " : "[ ] ") : (on ? "(x) " : "( ) ");
      }
      printed.cells.resize(std::max<std::size_t>(columns_, 1));
      printed.cells[0] = std::move(lead);
      for (std::size_t c = 0; c < columns_; ++c) {
        printed.cells[c] += reader_.cell(c, row).value_or("");
        if (reader_.emphasized(c, row)) printed.cells[c] += " *";
      }
      rows_.push_back(std::move(printed));
      if (expanded) rows(row, depth + 1);
    }
  }

  static std::string line(std::string start, const std::vector<std::string>& cells,
                          const std::vector<std::size_t>& widths) {
    for (std::size_t c = 0; c < cells.size(); ++c) {
      std::string cell = cells[c];
      if (c + 1 < cells.size()) pad_to(cell, widths[c]);
      start += (c == 0 ? "" : " │ ") + cell;
    }
    trim_right(start);
    return start;
  }

  const outline_reader& reader_;
  std::size_t columns_;
  std::vector<printed_row> rows_;
};

}  // namespace

outline_reader::outline_reader(tx_custom_pointer outline) : outline_(outline) {
  const std::int32_t count = std::clamp(call(outline, &outline_table::column_count), 0, 64);
  for (std::int32_t i = 0; i < count; ++i) {
    element_collector column;
    call(outline, &outline_table::visit_column, i, column.pair());
    for (const tx_custom_pointer c : column.elements()) {
      if (const tx_custom_pointer p = query(c, TX_STRING_OUTLINE_COLUMN_INTERFACE_10); present(p)) {
        columns_.push_back(p);
      }
    }
  }
  element_collector checks;
  call(outline, &outline_table::visit_checks, checks.pair());
  if (!checks.elements().empty()) {
    checks_ = query(checks.elements().front(), TX_OUTLINE_CHECKS_INTERFACE_1);
  }
}

std::int32_t outline_reader::row_count(tx_custom_pointer parent) const noexcept {
  return std::max(call(outline_, &outline_table::row_count, parent), 0);
}

tx_custom_pointer outline_reader::row(tx_custom_pointer parent, std::int32_t index) const noexcept {
  return call(outline_, &outline_table::row, parent, index);
}

std::string outline_reader::caption(tx_custom_pointer row) const {
  return columns_.empty() ? std::string() : cell(0, row).value_or("");
}

std::optional<std::string> outline_reader::cell(std::size_t column, tx_custom_pointer row) const {
  if (column >= columns_.size()) return std::nullopt;
  return collect_text([&](tx_custom_pointer visitor) {
    return call(columns_[column], &column_table::text, row, visitor);
  });
}

std::optional<std::string> outline_reader::header(std::size_t column) const {
  if (column >= columns_.size()) return std::nullopt;
  return collect_text([&](tx_custom_pointer visitor) {
    return call(columns_[column], &column_table::header, visitor);
  });
}

bool outline_reader::selected(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::selected, row);
}
bool outline_reader::expanded(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::expanded, row);
}
bool outline_reader::faulty(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::faulty, row);
}
bool outline_reader::checked(tx_custom_pointer row) const noexcept {
  return call(checks_, &checks_table::checked, row);
}
bool outline_reader::check_enabled(tx_custom_pointer row) const noexcept {
  return call(checks_, &checks_table::enabled, row);
}
bool outline_reader::editable(std::size_t column, tx_custom_pointer row) const noexcept {
  return column < columns_.size() && call(columns_[column], &column_table::editable, row);
}
bool outline_reader::emphasized(std::size_t column, tx_custom_pointer row) const noexcept {
  return column < columns_.size() && call(columns_[column], &column_table::emphasized, row);
}

found_row find_row(const outline_reader& reader, std::string_view address) {
  // Built by appending: mingw's g++ 12 at -O3 warns falsely on a literal + std::string here.
  std::string quoted(1, '"');
  quoted.append(address).push_back('"');
  row_finder path(reader);
  path.by_path(tx_custom_pointer{}, address);
  const std::vector<found_row>* matches = &path.matches();
  row_finder caption(reader);
  if (matches->empty()) {
    caption.by_caption(tx_custom_pointer{}, address);
    matches = &caption.matches();
  }
  if (matches->empty()) return {{}, {}, "no row " + quoted};
  if (matches->size() > 1) {
    return {{}, {}, "more than one row answers to " + quoted + ": give its path, {N} for the N-th"};
  }
  found_row row = matches->front();
  for (const tx_custom_pointer above : row.ancestors) {
    if (!reader.expanded(above)) {
      return {
          {}, {}, "row " + quoted + " is hidden: \"" + reader.caption(above) + "\" is collapsed"};
    }
  }
  return row;
}

std::vector<std::string> render_rows(const outline_reader& reader) {
  return rows_printer(reader).print();
}

}  // namespace tx::host::dialog
