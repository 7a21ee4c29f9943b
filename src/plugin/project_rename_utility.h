// The one utility of this plug-in: "Переименование элементов проекта" / "Rename Project
// Elements", identifier "txk_project_rename".
#pragma once

#include "plugin/referent.h"
#include "plugin/utility_service.h"
#include "toolkit/utility.h"

namespace tx {

class project_rename_widget;

class project_rename_utility final : public referent<utility_service_impl> {
 public:
  // The identifier of the utility and of its modal dialog: the library's own base name.
  static constexpr char16_t id[] = u"txk_project_rename";
  // Caption string: "Переименование элементов проекта" / "Rename Project Elements".
  static constexpr std::int32_t caption_id = 10;

  using command_type = toolkit::utility<project_rename_widget, &id, 0>;

  project_rename_utility() = default;

  custom_pointer referent() override { return referent_pointer(); }
  void visit_utilities(custom_pointer visitor) override;

  command_type& command() noexcept { return command_; }

 private:
  command_type command_{caption_id, 0, caption_id};
};

}  // namespace tx
