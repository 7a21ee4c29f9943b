/* tx_minimal_host PLUGIN [UTILITY]: a Tarvex plug-in's host in C over the SDK alone (see
   docs/host-guide.md). In Russian, then English, lists and runs UTILITY (txk_project_rename),
   closing its dialog with the close box. Exit: 0 done, 1 plug-in or utility failed, 2 usage. */
#include <stdio.h>
#include <string.h>

#include "tx/bundle.h"
#include "tx/host/txk_basic.h"
#include "tx/host/txk_prj.h"
#include "tx/modal_dialog.h"
#include "tx/referent.h"
#include "tx/toolkit/button_box.h"
#include "tx/toolkit/docker.h"
#include "tx/utility.h"
#include "tx/visitors.h"

typedef void (*any_function)(void);
#ifdef _WIN32
#include <windows.h>
typedef HMODULE library;
#define symbol(l, name) ((any_function)GetProcAddress((l), (name)))
#define close_library FreeLibrary
#else
#include <dlfcn.h>
typedef void* library;
static any_function symbol(library l, const char* name) {
  void* address = dlsym(l, name);
  any_function f = NULL;
  memcpy(&f, &address, sizeof f); /* POSIX: a function's address, handed over as a data pointer */
  return f;
}
#define close_library dlclose
#endif

/* Stands for the host's own language setting: your host's txk_basic answers tx_res_get_lng with
   its interface language; here the reference host's is switched. Not an SDK function (nor in
   txk_basic.def), so it comes from the reference host's txk_basic itself: see CMakeLists.txt. */
void tx_host_set_lng(int32_t offset);

enum { DONE = 0, CANNOT_RUN = 1, BAD_ARGUMENTS = 2, MOST = 8 };
#define NO_PAIR ((tx_custom_pointer){NULL, NULL})
#define PRESENT TX_CP_PRESENT
/* Calls `slot` of the pair `cp`, whose table is a `type`: CALL(type, cp, slot, arguments...). */
#define CALL(type, cp, slot, ...) ((const type*)(cp).table)->slot((cp).object, __VA_ARGS__)

/* Every host object begins with the interfaces it answers: names and tables, then a null name.
   Its root's query looks them up, and every pair of it the host hands out is taken from there. */
typedef struct answer {
  const char* name;
  const void* table;
} answer;
static int root_query(void* self, const char* name, const void** table, void** found) {
  int comparison = -1;
  *table = NULL, *found = NULL;
  for (const answer* a = self ? *(const answer**)self : NULL; name && a && a->name; ++a) {
    if ((comparison = strcmp(name, a->name)) == 0) return *table = a->table, *found = self, 0;
  }
  return comparison;
}
static const tx_root_interface root_table = {root_query};
/* Slot 0 of every host table. */
static tx_custom_pointer root(void* self) { return (tx_custom_pointer){&root_table, self}; }
/* A host object's pair for the interface `name`. */
static tx_custom_pointer as(void* self, const char* name) {
  tx_custom_pointer pair = NO_PAIR;
  root_query(self, name, &pair.table, &pair.object);
  return pair;
}
/* Any plug-in pair asked, through its root, for the interface `name`; a null pair if absent. */
static tx_custom_pointer query(tx_custom_pointer any, const char* name) {
  tx_custom_pointer found = NO_PAIR;
  if (!PRESENT(any) || *(const tx_root_fn*)any.table == NULL) return found;
  const tx_custom_pointer r = (*(const tx_root_fn*)any.table)(any.object);
  if (PRESENT(r)) CALL(tx_root_interface, r, query, name, &found.table, &found.object);
  return PRESENT(found) ? found : NO_PAIR;
}

/* UTF-16 to UTF-8 into `out` (cut short, never overrun); a lone surrogate becomes U+FFFD. */
static const char* utf8(const char16_t* text, char* out, size_t size) {
  static const unsigned char lead[] = {0x00, 0xC0, 0xE0, 0xF0};
  size_t n = 0;
  for (unsigned long c; text != NULL && (c = *text++) != 0 && n + 4 < size;) {
    if (c >= 0xD800 && c < 0xDC00 && *text >= 0xDC00 && *text < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (*text++ - 0xDC00u);
    } else if (c >= 0xD800 && c < 0xE000) {
      c = 0xFFFD;
    }
    const int extra = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    out[n++] = (char)(lead[extra] | (c >> (6 * extra)));
    for (int k = extra - 1; k >= 0; --k) out[n++] = (char)(0x80u | ((c >> (6 * k)) & 0x3Fu));
  }
  out[n] = '\0';
  return out;
}

/* The host itself: one object that plays every part the plug-in meets, each through its own
   interface (host_answers below). */
typedef struct host {
  const answer* answers;
  const char* wanted; /* the utility's identifier */
  int shown;          /* dialogs shown so far */
  bool captioned;     /* whether the last caption asked for was handed over */
  char caption[512];  /* that caption, in UTF-8 */
  size_t factories, holds, dialogs;
  tx_custom_pointer factory[MOST], dialog[MOST], utility, referent[MOST];
  bool holding[MOST]; /* whether the host still holds referent[i] */
} host;

/* As the bundle's visitor: one call per registered factory. */
static void take_factory(void* self, const char16_t* key, tx_custom_pointer factory) {
  host* h = self;
  char name[256];
  printf("  factory %u: \"%s\"\n", (unsigned)h->factories + 1, utf8(key, name, sizeof name));
  if (PRESENT(factory) && h->factories < MOST) h->factory[h->factories++] = factory;
}
/* As the factories' visitor: each published service is held through its referent (the host
   is the referrer), then asked for its utilities or its dialogs. */
static bool hold_service(host* h, tx_custom_pointer referent) {
  if (!PRESENT(referent) || h->holds == MOST) return false;
  h->referent[h->holds] = referent, h->holding[h->holds++] = true;
  CALL(tx_referent_interface_1, referent, attach, as(h, TX_REFERRER_INTERFACE_1));
  return true;
}
static void take_utility_service(void* self, tx_custom_pointer service) {
  const tx_utility_service_interface_2* t = service.table;
  if (PRESENT(service) && hold_service(self, t->referent(service.object))) {
    t->visit_utilities(service.object, as(self, TX_UTILITY_VISITOR_INTERFACE_2));
  }
}
static void take_dialog_service(void* self, tx_custom_pointer service) {
  const tx_modal_dialog_service_interface_102* t = service.table;
  if (PRESENT(service) && hold_service(self, t->referent(service.object))) {
    t->visit_dialogs(service.object, as(self, TX_MODAL_DIALOG_VISITOR_INTERFACE_101));
  }
}
/* As the services' visitor: every dialog gets the host's view; the wanted utility is kept. */
static void take_dialog(void* self, const char16_t* id, tx_custom_pointer dialog) {
  host* h = self;
  if (id == NULL || !PRESENT(dialog) || h->dialogs == MOST) return;
  h->dialog[h->dialogs++] = dialog;
  CALL(tx_modal_dialog_interface_101, dialog, set_view, as(h, TX_MODAL_DIALOG_VIEW_INTERFACE_101));
}
static void take_utility(void* self, const char16_t* id, tx_custom_pointer utility) {
  host* h = self;
  char name[256];
  if (PRESENT(utility) && strcmp(utf8(id, name, sizeof name), h->wanted) == 0) h->utility = utility;
}
/* As the referrer: `released` (the plug-in destroys a service: forget it, never detach) and
   `holds` (asked while another referrer detaches). */
static bool* holding(host* h, tx_custom_pointer referent) {
  for (size_t i = 0; i < h->holds; ++i) {
    if (h->referent[i].object == referent.object) return &h->holding[i];
  }
  return NULL;
}
static void released(void* self, tx_custom_pointer referent) {
  bool* held = holding(self, referent);
  if (held != NULL) *held = false;
}
static bool holds(void* self, tx_custom_pointer referent) {
  const bool* held = holding(self, referent);
  return held != NULL && *held;
}
/* As a string visitor: keeps the caption it is handed. */
static void take_caption(void* self, const char16_t* text) {
  host* h = self;
  h->captioned = true, utf8(text, h->caption, sizeof h->caption);
}
static tx_custom_pointer caption_visitor(host* h) {
  h->captioned = false, h->caption[0] = '\0';
  return as(h, TX_STRING_VISITOR_INTERFACE_0);
}
/* As the modal dialog view: prints the frame's caption, then presses the close box (nothing is
   written to the project) and answers that the close box closed the dialog. */
static int32_t show(void* self, tx_custom_pointer content, tx_custom_pointer buttons) {
  host* h = self;
  const tx_custom_pointer docker = query(content, TX_DOCKER_INTERFACE_92);
  const tx_custom_pointer box = query(buttons, TX_BUTTON_BOX_INTERFACE_2);
  const tx_custom_pointer visitor = caption_visitor(h);
  ++h->shown;
  if (PRESENT(docker)) CALL(tx_docker_interface_92, docker, caption, visitor);
  printf("  dialog shown: %s\n", h->captioned ? h->caption : "(no caption)");
  const bool closes = PRESENT(box) && CALL(tx_button_box_interface_2, box, press, -1);
  printf("  closed with the close box: %s\n", closes ? "yes" : "refused");
  return -1;
}

static const tx_service_visitor_interface_0 factory_table = {root, take_factory};
static const tx_utility_service_visitor_interface_2 utilities_table = {root, take_utility_service};
static const tx_modal_dialog_service_visitor_interface_102 dialogs_table = {root,
                                                                            take_dialog_service};
static const tx_modal_dialog_visitor_interface_101 dialog_table = {root, take_dialog};
static const tx_utility_visitor_interface_2 utility_table = {root, take_utility};
static const tx_referrer_interface_1 referrer_table = {root, released, holds};
static const tx_string_visitor_interface_0 caption_table = {root, take_caption};
static const tx_modal_dialog_view_interface_101 view_table = {root, show};
static const answer host_answers[] = {
    {TX_SERVICE_VISITOR_INTERFACE_0, &factory_table},
    {TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, &utilities_table},
    {TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, &dialogs_table},
    {TX_MODAL_DIALOG_VISITOR_INTERFACE_101, &dialog_table},
    {TX_UTILITY_VISITOR_INTERFACE_2, &utility_table},
    {TX_REFERRER_INTERFACE_1, &referrer_table},
    {TX_STRING_VISITOR_INTERFACE_0, &caption_table},
    {TX_MODAL_DIALOG_VIEW_INTERFACE_101, &view_table},
    {0}};

/* Lists the utility with its caption in the language now in force, then runs it once. */
static int list_and_run(host* h) {
  const tx_utility_interface_4* command = h->utility.table;
  const bool has = command->caption(h->utility.object, caption_visitor(h));
  printf("  utility %s: %s\n", h->wanted, has && h->captioned ? h->caption : "(no caption)");
  const int before = h->shown;
  const bool available = command->is_available(h->utility.object);
  if (available) command->run(h->utility.object); /* returns once its modal dialog has closed */
  if (available && h->shown == before + 1) return DONE;
  fprintf(stderr, "tx_minimal_host: the utility %s %s\n", h->wanted,
          available ? "did not show its dialog once" : "is not available");
  return CANNOT_RUN;
}

/* From the entry to the release. The host object outlives the library (main), since the
   plug-in may keep its pairs until it is unloaded. */
static int run(library plugin, const char* path, host* h) {
  const tx_bundle_entry_fn entry = (tx_bundle_entry_fn)symbol(plugin, TX_BUNDLE_ENTRY_NAME);
  /* The context only has to be non-null, so that the bundle pair counts as present. */
  const tx_custom_pointer bundle = entry != NULL ? entry(h) : NO_PAIR;
  if (!PRESENT(bundle)) {
    fprintf(stderr, "tx_minimal_host: %s is not a Tarvex plug-in (no %s export)\n", path,
            TX_BUNDLE_ENTRY_NAME);
    return CANNOT_RUN;
  }
  puts("bundle:");
  const tx_bundle_table* t = bundle.table;
  t->visit_services(bundle.object, as(h, TX_SERVICE_VISITOR_INTERFACE_0));
  /* Each factory visited with no service registry (a null pair: the host offers no services, so
     no localizer) and the host as its receiver; the services are held from here. */
  for (size_t i = 0; i < h->factories; ++i) {
    const tx_service_factory_table* f = h->factory[i].table;
    f->visit(h->factory[i].object, NO_PAIR, as(h, TX_SERVICE_VISITOR_INTERFACE_0));
  }
  printf("held: %u services\n", (unsigned)h->holds);
  printf("project: %s\n", tx_prj_get_instance() != NULL ? "open" : "none open");
  int status = PRESENT(h->utility) ? DONE : CANNOT_RUN;
  if (status != DONE) fprintf(stderr, "tx_minimal_host: %s has no utility %s\n", path, h->wanted);
  /* Russian, then English: the host sets its language; the plug-in reads it at every question
     (tx_res_get_lng) and loads its own strings in it. */
  for (int32_t language = 0; status == DONE && language <= 50000; language += 50000) {
    tx_host_set_lng(language);
    printf("language %d (tx_res_get_lng), the plug-in's own strings:\n", (int)tx_res_get_lng());
    status = list_and_run(h);
  }
  /* Release: the views taken back, then every hold detached (the plug-in may destroy services). */
  for (size_t i = 0; i < h->dialogs; ++i) {
    CALL(tx_modal_dialog_interface_101, h->dialog[i], set_view, NO_PAIR);
  }
  for (size_t i = 0; i < h->holds; ++i) {
    if (!h->holding[i]) continue;
    h->holding[i] = false;
    CALL(tx_referent_interface_1, h->referent[i], detach, as(h, TX_REFERRER_INTERFACE_1));
  }
  printf("released: %u services\n", (unsigned)h->holds);
  return status;
}

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
#else
int main(int argc, char** argv) {
#endif
  if (argc < 2 || argc > 3) {
    fputs("usage: tx_minimal_host PLUGIN [UTILITY]\n", stderr);
    return BAD_ARGUMENTS;
  }
  char path[1024], wanted[256] = "txk_project_rename";
#ifdef _WIN32
  utf8(argv[1], path, sizeof path);
  if (argc == 3) utf8(argv[2], wanted, sizeof wanted);
  wchar_t full[4096]; /* the altered search path (imports found beside it) wants a full path */
  const DWORD n = GetFullPathNameW(argv[1], 4096, full, NULL);
  library plugin =
      n > 0 && n < 4096 ? LoadLibraryExW(full, NULL, LOAD_WITH_ALTERED_SEARCH_PATH) : 0;
  if (!plugin)
    fprintf(stderr, "tx_minimal_host: cannot load %s (error %lu)\n", path, GetLastError());
#else
  snprintf(path, sizeof path, "%s", argv[1]);
  if (argc == 3) snprintf(wanted, sizeof wanted, "%s", argv[2]);
  library plugin = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (!plugin) fprintf(stderr, "tx_minimal_host: cannot load %s (%s)\n", path, dlerror());
#endif
  if (!plugin) return CANNOT_RUN;
  host h = {.answers = host_answers, .wanted = wanted};
  const int status = run(plugin, path, &h);
  /* The plug-in's unloading hook, called right before the library is closed, as Tarvex does. */
  const any_function hook = symbol(plugin, TX_BUNDLE_NOOP_NAME);
  if (hook != NULL) hook();
  close_library(plugin);
  if (status == DONE) puts("unloaded");
  return status;
}
