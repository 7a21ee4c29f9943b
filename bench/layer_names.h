// Layer-like names for the benchmarks, the same on every run: Latin and Cyrillic words, 5 to 60
// code units, separators, digits and file extensions mixed in, a fair share holding «road»,
// «Road» or «ROAD». Example: «ДОРОГА_Лес-участки.tab», «Road (2) buildings».
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace tx::bench {

std::vector<std::u16string> make_layer_names(std::size_t count, std::uint64_t origin);

// The benchmark set: 1,000,000 names, made once.
const std::vector<std::u16string>& layer_names();

// Writes the names as UTF-8, one a line (surrogate pairs joined; the names hold no line breaks).
void write_utf8_lines(std::ostream& out, const std::vector<std::u16string>& names);

}  // namespace tx::bench
