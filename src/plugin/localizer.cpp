#include "plugin/localizer.h"

namespace tx {
namespace {

custom_pointer& kept_localizer() noexcept {
  static custom_pointer localizer{};
  return localizer;
}

}  // namespace

custom_pointer localizer() noexcept { return kept_localizer(); }

void set_localizer(custom_pointer localizer) noexcept {
  kept_localizer() = present(localizer) ? localizer : custom_pointer{};
}

}  // namespace tx
