// Where a resource reference leads: a positive reference names a resource of the plug-in's own
// module; zero or a negative one names resource −reference of the host's basic library, found
// among the loaded modules by its name. Strings and text data are then looked up in the host's
// current language first and in Russian after it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/platform.h"

namespace tx::resource {

struct location {
  platform::module module;
  std::uint32_t id = 0;
};

// The module and id that `reference` names; nothing when that module is not loaded or the id
// cannot be a resource id.
std::optional<location> locate(std::int32_t reference) noexcept;

// The ids under which a string or text data of base id `id` is looked up, in order: its copy in
// the host's current language (id + tx_res_get_lng()), then the Russian base id. An id out of
// range is left out, and the base id is not tried twice.
class language_ids {
 public:
  explicit language_ids(std::uint32_t id) noexcept;
  const std::uint32_t* begin() const noexcept { return ids_.data(); }
  const std::uint32_t* end() const noexcept { return ids_.data() + count_; }

 private:
  std::array<std::uint32_t, 2> ids_{};
  std::size_t count_ = 0;
};

}  // namespace tx::resource
