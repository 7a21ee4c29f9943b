#include "tx_host/dialog/outline_reader.h"

#include <algorithm>
#include <charconv>

#include "tx/toolkit/outline.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/row_format.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/services/string_collector.h"
#include "tx_host/services/utf.h"

namespace tx::host::dialog {
namespace {

using outline_table = tx_outline_interface_32;
using column_table = tx_string_outline_column_interface_10;
using checks_table = tx_outline_checks_interface_1;

// Deeper than any project's tree: a row that is its own descendant stops here.
constexpr std::size_t kMaxRowDepth = 256;
constexpr std::string_view kStep = " / ";

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

// Gathers the shown rows, depth first, as plain values for the shared formatting.
class rows_gatherer {
 public:
  explicit rows_gatherer(const outline_reader& reader) : reader_(reader) {}

  std::vector<row_values> gather() {
    rows(tx_custom_pointer{}, 0);
    return std::move(rows_);
  }

 private:
  void rows(tx_custom_pointer parent, std::size_t depth) {
    if (depth >= kMaxRowDepth) return;
    const std::int32_t count = reader_.row_count(parent);
    for (std::int32_t i = 0; i < count; ++i) {
      const tx_custom_pointer row = reader_.row(parent, i);
      row_values values;
      values.selected = reader_.selected(row);
      values.faulty = reader_.faulty(row);
      values.depth = depth;
      values.expander = reader_.expander(row);
      if (present(reader_.checks())) {
        values.box = row_box{reader_.checked(row), reader_.check_enabled(row)};
      }
      for (std::size_t c = 0; c < reader_.columns().size(); ++c) {
        values.cells.push_back({reader_.cell(c, row).value_or(""), reader_.emphasized(c, row)});
      }
      const bool expanded = values.expander == row_expander::expanded;
      rows_.push_back(std::move(values));
      if (expanded) rows(row, depth + 1);
    }
  }

  const outline_reader& reader_;
  std::vector<row_values> rows_;
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

std::optional<std::u16string> outline_reader::wide_cell(std::size_t column,
                                                        tx_custom_pointer row) const {
  if (column >= columns_.size()) return std::nullopt;
  string_collector text;
  if (!call(columns_[column], &column_table::text, row, text.pair())) return std::nullopt;
  return text.text();
}

std::optional<std::u16string> outline_reader::wide_header(std::size_t column) const {
  if (column >= columns_.size()) return std::nullopt;
  string_collector text;
  if (!call(columns_[column], &column_table::header, text.pair())) return std::nullopt;
  return text.text();
}

std::optional<std::string> outline_reader::cell(std::size_t column, tx_custom_pointer row) const {
  const std::optional<std::u16string> text = wide_cell(column, row);
  return text ? std::optional<std::string>(to_utf8(*text)) : std::nullopt;
}

std::optional<std::string> outline_reader::header(std::size_t column) const {
  const std::optional<std::u16string> text = wide_header(column);
  return text ? std::optional<std::string>(to_utf8(*text)) : std::nullopt;
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

row_expander outline_reader::expander(tx_custom_pointer row) const noexcept {
  if (row_count(row) == 0) return row_expander::none;
  return expanded(row) ? row_expander::expanded : row_expander::collapsed;
}

std::optional<std::size_t> outline_reader::first_editable(tx_custom_pointer row) const noexcept {
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    if (editable(c, row)) return c;
  }
  return std::nullopt;
}

found_row find_row(const outline_reader& reader, std::string_view address) {
  row_finder path(reader);
  path.by_path(tx_custom_pointer{}, address);
  const std::vector<found_row>* matches = &path.matches();
  row_finder caption(reader);
  if (matches->empty()) {
    caption.by_caption(tx_custom_pointer{}, address);
    matches = &caption.matches();
  }
  const std::string named(address);
  if (matches->empty()) return {{}, {}, refusal{refusal_reason::no_row, named}};
  if (matches->size() > 1) return {{}, {}, refusal{refusal_reason::row_ambiguous, named}};
  found_row row = matches->front();
  for (const tx_custom_pointer above : row.ancestors) {
    if (!reader.expanded(above)) {
      return {{}, {}, refusal{refusal_reason::row_hidden, named, reader.caption(above)}};
    }
  }
  return row;
}

std::vector<std::string> render_rows(const outline_reader& reader) {
  std::vector<std::optional<std::string>> headers;
  for (std::size_t c = 0; c < reader.columns().size(); ++c) headers.push_back(reader.header(c));
  return format_rows(headers, present(reader.checks()), rows_gatherer(reader).gather());
}

}  // namespace tx::host::dialog
