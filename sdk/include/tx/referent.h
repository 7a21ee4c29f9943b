/* Reference counting across the boundary: a referent keeps a list of referrers; the last
   referrer that no longer holds it lets it die. */
#ifndef TX_REFERENT_H
#define TX_REFERENT_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* Implemented by an object that others may hold beyond one call. */
#define TX_REFERENT_INTERFACE_1 "tx_referent_interface_1"
typedef struct tx_referent_interface_1 {
  tx_root_fn root;
  /* Appends `referrer` (tx_referrer_interface_1) to the referent's list and returns the new
     number of referrers. The referent keeps the pair until it is detached or released. */
  size_t (*attach)(void* self, tx_custom_pointer referrer);
  /* Removes the first entry equal to `referrer`, then asks the others whether one still holds
     the referent; if none does, tells each of them (referrer's released) and destroys the
     referent. After this call the caller must not use the referent unless it knows another
     holder keeps it. */
  void (*detach)(void* self, tx_custom_pointer referrer);
  /* The object's principal interface pair, borrowed: valid while the referent lives. */
  tx_custom_pointer (*principal)(void* self);
  /* The referrer at `index` in attachment order, or a null pair past the end; borrowed. */
  tx_custom_pointer (*referrer_at)(void* self, size_t index);
} tx_referent_interface_1;

/* Implemented by whoever holds a referent. */
#define TX_REFERRER_INTERFACE_1 "tx_referrer_interface_1"
typedef struct tx_referrer_interface_1 {
  tx_root_fn root;
  /* The referent is being destroyed: forget it without detaching. `referent` is the dying
     object's tx_referent_interface_1 pair, valid only during the call. */
  void (*released)(void* self, tx_custom_pointer referent);
  /* Whether this referrer still holds `referent` (asked while another referrer detaches).
     Must not attach or detach. */
  bool (*holds)(void* self, tx_custom_pointer referent);
} tx_referrer_interface_1;

TX_STATIC_ASSERT(sizeof(tx_referent_interface_1) == 5 * sizeof(void*), "5 slots");
TX_STATIC_ASSERT(sizeof(tx_referrer_interface_1) == 3 * sizeof(void*), "3 slots");

TX_END_DECLS

#endif
