#include "toolkit/docker.h"

#include "toolkit/bitmap.h"
#include "toolkit/element.h"

namespace tx {

const docker_impl::table_type* docker_impl::table() noexcept {
  using I = docker_impl;
  static constexpr table_type table{
      &root_slot<I>,
      slot<&I::image>,
      slot<&I::caption>,
      slot<&I::visit_content>,
      slot<&I::flags>,
      slot<&I::id>,
      slot<&I::set_host_reference>,
  };
  return &table;
}

namespace toolkit {

bool docker_base::image(custom_pointer visitor) { return load_image(image_, visitor); }

bool docker_base::caption(custom_pointer visitor) { return load_text(caption_, visitor); }

}  // namespace toolkit
}  // namespace tx
