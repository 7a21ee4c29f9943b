#include "tx_host/dialog/refusal.h"

#include "tx_host/dialog/script_values.h"

namespace tx::host::dialog {

std::string message(const refusal& r) {
  const std::string subject = quoted(r.subject);
  switch (r.reason) {
    case refusal_reason::no_operation_selector:
      return "the dialog has no operation selector";
    case refusal_reason::operation_selector_off:
      return "the operation selector is disabled";
    case refusal_reason::no_operation:
      return "no operation " + subject;
    case refusal_reason::no_field_numbered:
      return "no field " + r.subject;
    case refusal_reason::no_field:
      return "no field " + subject;
    case refusal_reason::field_captioned_twice:
      return "more than one field is captioned " + subject + ": give its number";
    case refusal_reason::field_disabled:
      return "field " + subject + " is disabled";
    case refusal_reason::no_item:
      return "field " + subject + " has no item " + quoted(r.value);
    case refusal_reason::neither_on_nor_off:
      return quoted(r.value) + " is neither on nor off";
    case refusal_reason::not_whole_number:
      return quoted(r.value) + " is not a whole number";
    case refusal_reason::no_outline:
      return "the dialog has no outline";
    case refusal_reason::no_row:
      return "no row " + subject;
    case refusal_reason::row_ambiguous:
      return "more than one row answers to " + subject + ": give its path, {N} for the N-th";
    case refusal_reason::row_hidden:
      return "row " + subject + " is hidden: " + quoted(r.value) + " is collapsed";
    case refusal_reason::row_not_shown:
      return "row " + subject + " is not shown";
    case refusal_reason::no_check_boxes:
      return "the rows have no check boxes";
    case refusal_reason::box_fixed:
      return "the box of row " + subject + " cannot be changed";
    case refusal_reason::no_rows_under:
      return "row " + subject + " has no rows under it";
    case refusal_reason::no_editable_cell:
      return "row " + subject + " has no cell that can be edited";
    case refusal_reason::no_tool:
      return "no tool " + subject;
    case refusal_reason::tool_hidden:
      return "tool " + subject + " is hidden";
    case refusal_reason::tool_disabled:
      return "tool " + subject + " is disabled";
    case refusal_reason::no_button:
      return "no button " + subject;
    case refusal_reason::no_accepting_button:
      return "the dialog has no accepting button";
    case refusal_reason::no_closing_button:
      return "the dialog has no closing button";
  }
  return {};
}

}  // namespace tx::host::dialog
