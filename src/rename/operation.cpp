#include "rename/operation.h"

#include "resources/loader.h"

namespace tx {

namespace {
// The string that lists the characters separating words in a name.
constexpr std::int32_t separators_string = 128;
}  // namespace

prjrename_operation::prjrename_operation(std::uint32_t title_id)
    : title_id_(title_id),
      separator_text_(resource::string(separators_string).value_or(u"")),
      separators_(separator_text_) {}

}  // namespace tx
