// A host that misbehaves on purpose: before a dialog is driven, every element it holds is handed
// the null pair wherever its interface takes a pair (visitors, rows, views, host references) and
// a null text wherever it takes a text. The documented answer to each is the neutral one: a
// question about a null row answers as for a row without content (false, no text), a null
// visitor changes nothing of what an operation answers, a null view or host reference is kept
// as "none", a null text is ignored. Every answer that is not neutral is reported.
//
// The pass takes back the views and host references it nulled nowhere: the host sets them again
// as it does for any dialog it shows.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tx/abi.h"

namespace tx::host::dialog {

struct hostile_report {
  std::size_t elements = 0;  // element pairs handed nulls (docker, tools, columns, checks …)
  std::size_t rows = 0;      // outline rows handed a null visitor or a null text
  std::size_t calls = 0;     // calls made with a null pair or a null text
  // One line per answer that was not the neutral one, e.g.
  // "outline.selected(null row) answered true".
  std::vector<std::string> deviations;
};

// Runs the pass over the docker frame `docker` (a tx_docker_interface_92 pair), everything
// reachable from it, and the button box `buttons` (a tx_button_box_interface_2 pair).
hostile_report run_hostile_pass(tx_custom_pointer docker, tx_custom_pointer buttons);

// "hostile: 40 elements and 15 rows, 230 calls with null pairs and null texts; every answer
// neutral" and a line per deviation, each line ending with a line break.
std::string describe(const hostile_report& report);

}  // namespace tx::host::dialog
