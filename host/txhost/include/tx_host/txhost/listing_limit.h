// How much of a long listing txhost prints: a project of a million elements would otherwise fill
// the terminal with a million lines. The project listing and the saved names stop after this
// many lines with one line telling how many more there are; --all prints them all.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace tx::host {

inline constexpr std::size_t kListedLines = 200;

// The lines a listing prints before it stops: all of them with --all.
constexpr std::size_t listed_lines(bool all) noexcept {
  return all ? std::numeric_limits<std::size_t>::max() : kListedLines;
}

// The line that ends a listing cut short: "INDENT… and 1,009,603 more WHAT (--all lists them
// all)" and a line break.
std::string more_line(std::string_view indent, std::size_t hidden, std::string_view what);

}  // namespace tx::host
