// Why a script's command cannot be done as a person would do it: one reason of a closed set, with
// the words it names (the field, row, tool, button or value the command gave), and the one
// sentence each reason is told with. Both hosts find a command's target the same way
// (script_targets.h) and refuse with these; code that must tell refusals apart compares their
// reasons, never their sentences.
#pragma once

#include <string>
#include <utility>

namespace tx::host::dialog {

enum class refusal_reason {
  no_operation_selector,   // the dialog has no operation selector
  operation_selector_off,  // the operation selector is disabled
  no_operation,            // no operation "SUBJECT"
  no_field_numbered,       // no field SUBJECT (a number)
  no_field,                // no field "SUBJECT"
  field_captioned_twice,   // more than one field is captioned "SUBJECT": give its number
  field_disabled,          // field "SUBJECT" is disabled
  no_item,                 // field "SUBJECT" has no item "VALUE"
  neither_on_nor_off,      // "VALUE" is neither on nor off
  not_whole_number,        // "VALUE" is not a whole number
  no_outline,              // the dialog has no outline
  no_row,                  // no row "SUBJECT"
  row_ambiguous,           // more than one row answers to "SUBJECT": give its path, …
  row_hidden,              // row "SUBJECT" is hidden: "VALUE" is collapsed
  row_not_shown,           // row "SUBJECT" is not shown
  no_check_boxes,          // the rows have no check boxes
  box_fixed,               // the box of row "SUBJECT" cannot be changed
  no_rows_under,           // row "SUBJECT" has no rows under it
  no_editable_cell,        // row "SUBJECT" has no cell that can be edited
  no_tool,                 // no tool "SUBJECT"
  tool_hidden,             // tool "SUBJECT" is hidden
  tool_disabled,           // tool "SUBJECT" is disabled
  no_button,               // no button "SUBJECT"
  no_accepting_button,     // the dialog has no accepting button
  no_closing_button,       // the dialog has no closing button
};

struct refusal {
  refusal(refusal_reason why, std::string named = {}, std::string given = {})
      : reason(why), subject(std::move(named)), value(std::move(given)) {}

  refusal_reason reason;
  // What the command named: a field, row, tool, button or operation.
  std::string subject;
  // The value it gave (a field's value), or the collapsed row above a hidden one.
  std::string value;
};

// The sentence a script's error line tells `r` with.
std::string message(const refusal& r);

}  // namespace tx::host::dialog
