// The columns of an outline: the check boxes before the first text column
// ("tx_outline_checks_interface_1") and the text columns
// ("tx_string_outline_column_interface_10").
//
// The _impl classes are the interfaces as the host sees them. The toolkit bases below them keep
// what a column knows of itself (identifier, header, size, view) and turn the user's edits into
// calls of the derived class, which reads and writes its rows in the model, followed by the
// column's event. Rows arrive as the outline's row pairs; a derived class reads them back with
// outline_item<T>::from.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/element.h"
#include "toolkit/event.h"
#include "tx/toolkit/outline.h"

namespace tx {

class outline_checks_impl : public interface_impl {
 public:
  using table_type = tx_outline_checks_interface_1;
  static constexpr const char* interface_name = TX_OUTLINE_CHECKS_INTERFACE_1;
  static const table_type* table() noexcept;

  virtual bool checked(custom_pointer row) = 0;
  virtual void set_checked(custom_pointer row, bool checked) = 0;
  virtual bool enabled(custom_pointer row) = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~outline_checks_impl() = default;
};

class string_outline_column_impl : public interface_impl {
 public:
  using table_type = tx_string_outline_column_interface_10;
  static constexpr const char* interface_name = TX_STRING_OUTLINE_COLUMN_INTERFACE_10;
  static const table_type* table() noexcept;

  virtual bool id(custom_pointer visitor) = 0;
  virtual bool header(custom_pointer visitor) = 0;
  virtual std::int32_t size() = 0;
  virtual bool text(custom_pointer row, custom_pointer visitor) = 0;
  virtual bool editable(custom_pointer row) = 0;
  virtual bool emphasized(custom_pointer row) = 0;
  virtual void set_text(custom_pointer row, const char16_t* text) = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~string_outline_column_impl() = default;
};

namespace toolkit {

// Check boxes whose state lives in the model. A derived class answers checked() and stores a
// user's tick in check(); every row's box is enabled unless it says otherwise.
class outline_checks : public detail::generic_element_impl<outline_checks_impl> {
 public:
  outline_checks() = default;
  virtual ~outline_checks() = default;

  bool enabled(custom_pointer row) override;
  // A user's tick: stored through check(), then `changed` raised; ignored on a disabled box.
  void set_checked(custom_pointer row, bool checked) final;

  // Raised after the user changed a box.
  event<void()> changed;

 protected:
  virtual void check(custom_pointer row, bool checked) = 0;
};

// A column of text whose cells live in the model. A derived class answers text(), editable()
// and emphasized() and stores a user's edit in edit().
class string_outline_column : public detail::generic_element_impl<string_outline_column_impl> {
 public:
  // `id`: the column's identifier; `header`: its header's resource reference (0: none);
  // `size`: its size for the host's toolkit.
  string_outline_column(std::u16string id, std::int32_t header, std::int32_t size);
  virtual ~string_outline_column() = default;

  bool id(custom_pointer visitor) override;
  bool header(custom_pointer visitor) override;
  std::int32_t size() override { return size_; }
  // A user's edit: stored through edit(), then `edited` raised; ignored on a read-only cell.
  void set_text(custom_pointer row, const char16_t* text) final;

  // Raised after the user edited a cell.
  event<void()> edited;

 protected:
  virtual void edit(custom_pointer row, std::u16string_view text) = 0;

 private:
  std::u16string id_;
  std::int32_t header_;
  std::int32_t size_;
};

}  // namespace toolkit
}  // namespace tx
