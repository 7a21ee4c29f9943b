// The string adapter: the plug-in's string and the function that fills it, kept together so
// that the host's caption getters can write into a string they know nothing of.
#include <new>

#include "host_export.h"
#include "tx_host/basic.h"

struct tx_string_adp {
  void* target;
  tx_string_adp_assign_fn assign;
};

// Created for the caller and freed by it through tx_string_adp_destroy: the C interface owns
// the adapter, hence the plain new and delete.
tx_string_adp* tx_string_adp_create(void* target, tx_string_adp_assign_fn assign) {
  return new (std::nothrow) tx_string_adp{target, assign};
}

void tx_string_adp_destroy(tx_string_adp* adapter) { delete adapter; }

TX_HOST_SIDE_EXPORT void tx_host_string_adp_assign(tx_string_adp* adapter, const char16_t* text,
                                                   size_t length) {
  if (adapter == nullptr || adapter->assign == nullptr) return;
  if (text == nullptr) {
    adapter->assign(adapter->target, u"", 0);
  } else {
    adapter->assign(adapter->target, text, length);
  }
}
