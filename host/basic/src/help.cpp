// Help: every positive key is its own topic, and showing a topic is recorded, not shown, so that
// the runner and the tests can tell what the plug-in asked for.
#include <atomic>
#include <cstdint>

#include "host_export.h"
#include "tx_host/basic.h"

namespace {

std::atomic<std::int32_t> last_help_id{0};
std::atomic<std::int32_t> last_help_mode{0};

}  // namespace

int32_t tx_help_mngr_find_help_id(int32_t key) { return key > 0 ? key : 0; }

void tx_help_mngr_show_help(int32_t mode, int32_t help_id) {
  last_help_mode.store(mode, std::memory_order_relaxed);
  last_help_id.store(help_id, std::memory_order_relaxed);
}

TX_HOST_SIDE_EXPORT int32_t tx_host_last_help_id(void) {
  return last_help_id.load(std::memory_order_relaxed);
}

TX_HOST_SIDE_EXPORT int32_t tx_host_last_help_mode(void) {
  return last_help_mode.load(std::memory_order_relaxed);
}
