// docs/performance.md, made from its template (bench/performance.md.in) and the results of the
// native run and the Windows run under Wine. The template is the document as a person wrote it;
// each line that holds only a placeholder is replaced by what the runs measured:
//   @MEASURED@        when, on what machine, under what load
//   @TREE_NATIVE@     the element tree's times and memory, native build
//   @TREE_WINDOWS@    the same, Windows build under Wine
//   @RENAME@          names per second of every rename operation in both builds, GNU sed beside
//   @RUNTIME@         what the runtime underneath costs in both builds
//   @GOALS@           every goal and whether each build meets it
//   @MISSED@          the goals missed, one line each (or that none is)
//   @WINDOW@          the window's steps over a large project, Windows build under Wine
//   @PROJECT_FILES@   txhost opening, renaming and saving large project files, both builds
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scale_results.h"

namespace tx::bench {

struct document_inputs {
  const scale_results* native = nullptr;   // null: not measured, `native_missing` says why
  const scale_results* windows = nullptr;  // null: not measured, `windows_missing` says why
  std::string native_missing;
  std::string windows_missing;
  std::optional<double> sed_names_per_second;
  std::string date;                       // when the runs were made
  std::string machine;                    // processors and model
  std::string native_load;                // load average around the native run
  std::string windows_load;               // load average around the Windows run
  const scale_results* window = nullptr;  // null: not measured, `window_missing` says why
  std::string window_missing;
  std::string window_load;                       // load average around the window benchmark
  const scale_results* project_files = nullptr;  // null: `project_files_missing` says why
  std::string project_files_missing;
  std::string project_files_load;  // load average around the project-file benchmark
};

// The document: `template_text` with every placeholder line replaced. A placeholder the
// template lacks is simply not shown; a line with anything besides a placeholder is kept as is.
std::string compose_performance_document(std::string_view template_text,
                                         const document_inputs& inputs);

// `document` with its section that begins with the line `heading` (up to the next heading of
// the same or a higher level) replaced by that section of `composed`; when `document` lacks the
// section it is added at the end. Nothing when `composed` lacks it.
std::optional<std::string> replace_section(std::string_view document, std::string_view composed,
                                           std::string_view heading);

}  // namespace tx::bench
