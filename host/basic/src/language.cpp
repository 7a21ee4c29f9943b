// The interface language, as the offset added to a string's base id: 0 Russian (the default),
// 50000 English.
#include <atomic>
#include <cstdint>

#include "host_export.h"
#include "tx_host/basic.h"

namespace {

std::atomic<std::int32_t> language_offset{0};

}  // namespace

int32_t tx_res_get_lng(void) { return language_offset.load(std::memory_order_relaxed); }

TX_HOST_SIDE_EXPORT void tx_host_set_lng(int32_t offset) {
  language_offset.store(offset, std::memory_order_relaxed);
}
