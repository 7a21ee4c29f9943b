// Grid layouts: a fixed number of rows and columns of cells, each empty or holding one element.
//
// Cells are stored row by row. The host's visit cell takes the cell at index row + column in
// every grid: grid_layout<R, C> is used only as a single row or a single column, where that sum
// is the cell's row-major index. grid_span_layout<R, C> is a true grid whose elements may span
// the rest of their row or column; there the sum reaches another cell, and a host that lays it
// out asks visit grid cell, which takes the cell at row × C + column and reports its span. Both
// are filled through a cell cursor that advances even over an element that is absent, leaving
// that cell empty.
#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "toolkit/element.h"
#include "tx/toolkit/layout.h"

namespace tx {

class grid_layout_impl : public interface_impl {
 public:
  using table_type = tx_grid_layout_interface_91;
  static constexpr const char* interface_name = TX_GRID_LAYOUT_INTERFACE_91;
  static const table_type* table() noexcept;

  virtual std::int32_t spacing() = 0;
  virtual std::int32_t column_count() = 0;
  virtual std::int32_t row_count() = 0;
  virtual std::int32_t reserved_4() = 0;
  virtual std::int32_t reserved_5() = 0;
  virtual bool column_stretch(std::int32_t column) = 0;
  virtual bool row_stretch(std::int32_t row) = 0;
  virtual std::int32_t column_minimum(std::int32_t column) = 0;
  virtual std::int32_t row_minimum(std::int32_t row) = 0;
  virtual bool column_natural(std::int32_t column) = 0;
  virtual bool row_natural(std::int32_t row) = 0;
  virtual void visit_cell(std::int32_t row, std::int32_t column, custom_pointer visitor) = 0;
  virtual void set_view(custom_pointer view) = 0;
  virtual void visit_grid_cell(std::int32_t row, std::int32_t column, std::int32_t* rows,
                               std::int32_t* columns, custom_pointer visitor) = 0;

 protected:
  ~grid_layout_impl() = default;
};

namespace toolkit {

// The settings of one row or one column.
struct grid_line {
  bool stretch = false;
  bool natural = false;
  std::int32_t minimum = 0;
};

namespace detail {

template <int R, int C, class Derived>
class grid_layout_base : public generic_element_impl<grid_layout_impl> {
  static_assert(R > 0 && C > 0, "a grid has at least one cell");

 public:
  static constexpr int row_total = R;
  static constexpr int column_total = C;
  static constexpr int cell_total = R * C;

  // Puts `element` (an element pair, or an absent one) into the next cell and advances the
  // cursor; past the last cell nothing is placed. Returns the index it used, or -1.
  int place(custom_pointer element) noexcept {
    if (cursor_ >= cell_total) return -1;
    const int index = cursor_++;
    set_cell(index, element);
    return index;
  }
  // Sets the cell at row-major `index`.
  void set_cell(int index, custom_pointer element) noexcept {
    if (index < 0 || index >= cell_total) return;
    cells_[static_cast<std::size_t>(index)] = present(element) ? element : custom_pointer{};
    notify(TX_CHANGED_LAYOUT);
  }
  custom_pointer cell(int index) const noexcept {
    return index >= 0 && index < cell_total ? cells_[static_cast<std::size_t>(index)]
                                            : custom_pointer{};
  }
  int cursor() const noexcept { return cursor_; }

  grid_line& row(int r) { return rows_.at(static_cast<std::size_t>(r)); }
  grid_line& column(int c) { return columns_.at(static_cast<std::size_t>(c)); }
  // Both stretch flags of a two-cell layout, or every line's: the layout takes all spare room.
  void set_stretch(bool on) noexcept {
    for (auto& r : rows_) r.stretch = on;
    for (auto& c : columns_) c.stretch = on;
    notify(TX_CHANGED_LAYOUT);
  }
  void set_spacing(std::int32_t spacing) noexcept { spacing_ = spacing; }

  // The host's questions.
  std::int32_t spacing() override { return spacing_; }
  std::int32_t column_count() override { return C; }
  std::int32_t row_count() override { return R; }
  std::int32_t reserved_4() override { return 0; }
  std::int32_t reserved_5() override { return 0; }
  bool column_stretch(std::int32_t c) override { return line(columns_, c).stretch; }
  bool row_stretch(std::int32_t r) override { return line(rows_, r).stretch; }
  std::int32_t column_minimum(std::int32_t c) override { return line(columns_, c).minimum; }
  std::int32_t row_minimum(std::int32_t r) override { return line(rows_, r).minimum; }
  bool column_natural(std::int32_t c) override { return line(columns_, c).natural; }
  bool row_natural(std::int32_t r) override { return line(rows_, r).natural; }
  void visit_cell(std::int32_t r, std::int32_t c, custom_pointer visitor) override {
    if (r < 0 || c < 0 || r >= R || c >= C) return;
    visit_element(visitor, cell(r + c));
  }
  void visit_grid_cell(std::int32_t r, std::int32_t c, std::int32_t* rows, std::int32_t* columns,
                       custom_pointer visitor) override {
    const auto [span_rows, span_columns] = static_cast<Derived*>(this)->span_of(r, c);
    if (rows != nullptr) *rows = span_rows;
    if (columns != nullptr) *columns = span_columns;
    if (r < 0 || c < 0 || r >= R || c >= C) return;
    visit_element(visitor, cell(r * C + c));
  }

 protected:
  grid_layout_base() = default;
  ~grid_layout_base() = default;

  int cursor_ = 0;

 private:
  template <std::size_t N>
  static grid_line line(const std::array<grid_line, N>& lines, std::int32_t i) noexcept {
    return i >= 0 && static_cast<std::size_t>(i) < N ? lines[static_cast<std::size_t>(i)]
                                                     : grid_line{};
  }

  std::array<custom_pointer, static_cast<std::size_t>(R* C)> cells_{};
  std::array<grid_line, static_cast<std::size_t>(R)> rows_{};
  std::array<grid_line, static_cast<std::size_t>(C)> columns_{};
  std::int32_t spacing_ = 0;
};

}  // namespace detail

template <int R, int C>
class grid_layout final : public detail::grid_layout_base<R, C, grid_layout<R, C>> {
  static_assert(R == 1 || C == 1, "a plain grid layout is a single row or a single column");

 public:
  grid_layout() = default;
  std::pair<std::int32_t, std::int32_t> span_of(std::int32_t, std::int32_t) const noexcept {
    return {1, 1};
  }
};

template <int R, int C>
class grid_span_layout final : public detail::grid_layout_base<R, C, grid_span_layout<R, C>> {
  using base = detail::grid_layout_base<R, C, grid_span_layout<R, C>>;

 public:
  grid_span_layout() = default;
  static constexpr int cell_index(std::int32_t row, std::int32_t column) noexcept {
    return row * C + column;
  }
  // Filled row by row unless column-first, then column by column.
  void set_column_first(bool on) noexcept { column_first_ = on; }
  bool column_first() const noexcept { return column_first_; }

  // Puts `element` into the next cell in fill order and advances; returns the cell's index.
  int place_next(custom_pointer element) noexcept {
    const int index = next_index();
    if (index < 0) return -1;
    this->set_cell(index, element);
    ++this->cursor_;
    return index;
  }
  // Puts `element` into the next cell and lets it span the rest of that row (or column, when
  // column-first); the cursor moves past the covered cells.
  int place_spanning(custom_pointer element) noexcept {
    const int index = next_index();
    if (index < 0) return -1;
    const int r = index / C;
    const int c = index % C;
    const int covered = column_first_ ? R - r : C - c;
    this->set_cell(index, element);
    spans_[static_cast<std::size_t>(index)] =
        column_first_ ? std::pair{covered, 1} : std::pair{1, covered};
    this->cursor_ += covered;
    return index;
  }
  std::pair<std::int32_t, std::int32_t> span_of(std::int32_t row,
                                                std::int32_t column) const noexcept {
    if (row < 0 || column < 0 || row >= R || column >= C) return {1, 1};
    return spans_[static_cast<std::size_t>(cell_index(row, column))];
  }

 private:
  // The cell index at the cursor in fill order, or -1 when the grid is full.
  int next_index() const noexcept {
    const int k = this->cursor_;
    if (k >= R * C) return -1;
    return column_first_ ? (k % R) * C + k / R : k;
  }

  bool column_first_ = false;
  std::array<std::pair<std::int32_t, std::int32_t>, static_cast<std::size_t>(R* C)> spans_ =
      filled_spans();
  static constexpr auto filled_spans() {
    std::array<std::pair<std::int32_t, std::int32_t>, static_cast<std::size_t>(R * C)> s{};
    for (auto& e : s) e = {1, 1};
    return s;
  }
};

}  // namespace toolkit
}  // namespace tx
