// What one run of the scale report measured, by key, so that the runs of both builds can be set
// side by side afterwards: a flat map written as one «key<TAB>value» line each, in key order.
// Keys name what was measured, for example «tree.execute.1000000.ms» (median milliseconds),
// «memory.peak.1000000» (plug-in heap bytes per element), «rename.chain_of_four.names_per_second»,
// «skipped.1000000» (why a size was not measured).
#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tx::bench {

class scale_results {
 public:
  void set(const std::string& key, double value);
  void set_text(const std::string& key, std::string_view text);

  // The value of `key` as a number, or nothing when it is absent or not a number.
  std::optional<double> number(std::string_view key) const;
  // The value of `key` as it was written, or null when absent.
  const std::string* text(std::string_view key) const;

  void write(std::ostream& out) const;
  // Reads what write() wrote; a line without a key and a tab gives nothing, and `error` says
  // which line it was.
  static std::optional<scale_results> read(std::istream& in, std::string& error);

 private:
  std::map<std::string, std::string, std::less<>> values_;
};

// Keys of the tree measures: «tree.<operation>.<elements>.<what>», «memory.<row>.<elements>».
std::string tree_key(std::string_view operation, std::size_t elements, std::string_view what);
std::string memory_key(std::string_view row, std::size_t elements);
std::string skipped_key(std::size_t elements);
// Keys of the rename measures: «rename.<operation>.<what>».
std::string rename_key(std::string_view operation, std::string_view what);

}  // namespace tx::bench
