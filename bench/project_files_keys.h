// Keys of the project-file benchmark's results: «files.<row>.<elements>.<what>», where the row
// names the build and the command («native.rename», «wine.list», «native.python») or what was
// checked once per size («second_save», «file»), and what is «ms» (median milliseconds),
// «peak_bytes» (median peak resident memory), «runs», «failed» (why not measured), «identical».
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tx::bench {

inline std::string files_key(std::string_view row, std::size_t elements, std::string_view what) {
  return "files." + std::string(row) + "." + std::to_string(elements) + "." + std::string(what);
}

}  // namespace tx::bench
