/* The binary interface shared by a host and its plug-ins: the custom pointer, the root
   interface through which every object is asked for an interface by name, and the basic
   types that cross the boundary. Plain C; every header of the SDK compiles as C and as C++. */
#ifndef TX_ABI_H
#define TX_ABI_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define TX_EXTERN_C extern "C"
#define TX_BEGIN_DECLS extern "C" {
#define TX_END_DECLS }
#define TX_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#else
#include <stdbool.h>
#include <uchar.h>
#define TX_EXTERN_C
#define TX_BEGIN_DECLS
#define TX_END_DECLS
#define TX_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

/* Functions a host library exports and a plug-in imports. */
#ifdef _WIN32
#define TX_HOST_API TX_EXTERN_C
#define TX_PLUGIN_EXPORT TX_EXTERN_C __declspec(dllexport)
#else
#define TX_HOST_API TX_EXTERN_C __attribute__((visibility("default")))
#define TX_PLUGIN_EXPORT TX_EXTERN_C __attribute__((visibility("default")))
#endif

TX_BEGIN_DECLS

TX_STATIC_ASSERT(sizeof(bool) == 1, "bool is one byte on both sides");

/* Text crossing the boundary is UTF-16, NUL-terminated, in char16_t units. */
TX_STATIC_ASSERT(sizeof(char16_t) == 2, "names are UTF-16 code units");

/* The unit of exchange: a function table and the object its functions act on. Passed and
   returned by value. Present only when both halves are non-null; a caller tests both before
   calling through it, and an absent pair is a silent no-op. */
typedef struct tx_custom_pointer {
  const void* table;
  void* object;
} tx_custom_pointer;

TX_STATIC_ASSERT(sizeof(tx_custom_pointer) == 2 * sizeof(void*), "custom pointer is two pointers");
TX_STATIC_ASSERT(offsetof(tx_custom_pointer, object) == sizeof(void*),
                 "table first, object second");

/* Slot 0 of every interface table: returns the root custom pointer of the same object
   (a tx_root_interface table and the object). The result is borrowed from the object. */
typedef tx_custom_pointer (*tx_root_fn)(void* self);

/* The root table of an object: a single slot. */
typedef struct tx_root_interface {
  /* Clears *table and *object, then, when the object implements the interface `name`
     (compared with strcmp), writes that interface's table and object. Success is read from
     the out-parameters only; the result is the last name comparison. The returned pair is
     borrowed: valid while the object lives. Any thread the object allows; UI thread here. */
  int (*query)(void* self, const char* name, const void** table, void** object);
} tx_root_interface;

TX_STATIC_ASSERT(sizeof(tx_root_interface) == 1 * sizeof(void*), "root table has one slot");

/* The host's identity of a project element: opaque, hashed with tx_uuid_hash and compared
   with tx_uuid_equal, never bitwise. The null uuid marks "no element". */
typedef struct tx_uuid {
  uint64_t opaque;
} tx_uuid;

TX_STATIC_ASSERT(sizeof(tx_uuid) == 8, "uuid is a 64-bit handle passed by value");

TX_END_DECLS

/* A custom pointer counts only when both halves are set. */
#define TX_CP_PRESENT(cp) ((cp).table != NULL && (cp).object != NULL)

#endif
