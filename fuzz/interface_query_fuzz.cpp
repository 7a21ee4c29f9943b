// The interface query by name, on the plug-in's objects: any byte string is a name to ask for.
// An object answers exactly the names of the interfaces it implements (strcmp-equal, version
// included) with its own table and object, and leaves both outs cleared for every other name.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "plugin/interface.h"
#include "toolkit/button_box.h"
#include "toolkit/checkbox.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"

namespace {

template <class Impl, class Element>
void ask(Element& element, const std::string& name) {
  const tx::custom_pointer root = element.root();
  const auto* root_table = static_cast<const tx_root_interface*>(root.table);
  const void* table = &name;  // the query must clear both outs first
  void* object = &table;
  root_table->query(root.object, name.c_str(), &table, &object);
  const bool named = std::strcmp(name.c_str(), Impl::interface_name) == 0;
  if (named != (table != nullptr) || named != (object != nullptr)) std::abort();
  if (named && (table != Impl::table() || object != static_cast<Impl*>(&element))) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A name is what the host passes: bytes up to the first NUL.
  const std::string name(reinterpret_cast<const char*>(data),
                         strnlen(reinterpret_cast<const char*>(data), size));
  static tx::toolkit::dropdown dropdown;
  static tx::toolkit::checkbox checkbox;
  static tx::toolkit::grid_layout<1, 3> layout;
  static tx::toolkit::button_box buttons(2 | 8);
  ask<tx::dropdown_impl>(dropdown, name);
  ask<tx::checkbox_impl>(checkbox, name);
  ask<tx::grid_layout_impl>(layout, name);
  ask<tx::button_box_impl>(buttons, name);
  return 0;
}
