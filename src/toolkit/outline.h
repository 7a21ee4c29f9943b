// outline: the tree control of an outline element ("tx_outline_interface_32").
//
// The outline keeps no row state: every row question of the host (children, selected,
// expanded, faulty) is answered by the derived class from its model, where the user's changes
// are also written. The outline itself holds its style, its text columns in display order and
// its check boxes; it borrows them from their owner (the element that composes the outline),
// which keeps them alive as long as the outline. When the model changes, reload() tells the
// host's view to read every row again.
#pragma once

#include <cstdint>
#include <vector>

#include "toolkit/element.h"
#include "toolkit/outline_columns.h"
#include "tx/toolkit/outline.h"

namespace tx {

class outline_impl : public interface_impl {
 public:
  using table_type = tx_outline_interface_32;
  static constexpr const char* interface_name = TX_OUTLINE_INTERFACE_32;
  static const table_type* table() noexcept;

  virtual std::uint32_t style() = 0;
  virtual std::int32_t row_count(custom_pointer parent) = 0;
  virtual custom_pointer row(custom_pointer parent, std::int32_t index) = 0;
  virtual bool selected(custom_pointer row) = 0;
  virtual void set_selected(custom_pointer row, bool selected) = 0;
  virtual bool expanded(custom_pointer row) = 0;
  virtual void set_expanded(custom_pointer row, bool expanded) = 0;
  virtual bool faulty(custom_pointer row) = 0;
  virtual std::int32_t column_count() = 0;
  virtual void visit_column(std::int32_t index, custom_pointer visitor) = 0;
  virtual void visit_checks(custom_pointer visitor) = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~outline_impl() = default;
};

namespace toolkit {

class outline : public detail::generic_element_impl<outline_impl> {
 public:
  virtual ~outline() = default;

  std::uint32_t style() override { return style_; }
  std::int32_t column_count() override;
  void visit_column(std::int32_t index, custom_pointer visitor) override;
  void visit_checks(custom_pointer visitor) override;

  // Shows `column` after the columns added before it.
  void add_column(string_outline_column_impl& column);
  // Gives every row a check box handled by `checks`; null: no check boxes.
  void set_checks(outline_checks_impl* checks) noexcept {
    checks_ = checks;
    notify(TX_CHANGED_ROWS);
  }

  // The model changed: the host reads every row again.
  void reload() const noexcept { notify(TX_CHANGED_ROWS); }

 protected:
  // `style`: the control's style bits for the host's toolkit.
  explicit outline(std::uint32_t style) noexcept : style_(style) {}

 private:
  std::uint32_t style_;
  std::vector<string_outline_column_impl*> columns_;
  outline_checks_impl* checks_ = nullptr;
};

}  // namespace toolkit
}  // namespace tx
