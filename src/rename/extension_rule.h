// The split of a name at its extension.
#pragma once

#include <string_view>

namespace tx::rename {

// Rule: scanning back from the last unit, stop at the first '.' (or at '\' or '/': then there is
// no extension); a dot found at i ≥ 1 cuts the name to [0, i), otherwise it stays whole.
// Examples: «layer.tab» → «layer», «archive.tar.gz» → «archive.tar», «name.» → «name»;
// «.hidden», «noext» and «a.b/c» stay as they are. The result views `name`.
std::u16string_view cut_extension(std::u16string_view name) noexcept;

}  // namespace tx::rename
