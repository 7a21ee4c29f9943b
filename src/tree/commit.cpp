#include "tree/commit.h"

#include "platform/platform.h"
#include "resources/warning.h"
#include "tx/host/txk_entity.h"
#include "tx/host/txk_msgs.h"
#include "tx/host/txk_prj.h"

namespace tx {
namespace {

// The optional bracket functions of the host's entity library, looked up by name.
struct update_bracket {
  tx_entity_update_recursive_fn begin = nullptr;
  tx_entity_update_recursive_fn end = nullptr;

  static update_bracket of_host() noexcept {
    constexpr std::u16string_view library = u"txk_entity.dll";
    return {reinterpret_cast<tx_entity_update_recursive_fn>(
                platform::find_function(library, TX_ENTITY_BEGIN_UPDATE_RECURSIVE_NAME)),
            reinterpret_cast<tx_entity_update_recursive_fn>(
                platform::find_function(library, TX_ENTITY_END_UPDATE_RECURSIVE_NAME))};
  }
};

}  // namespace

bool commit_names(const prjrename_names& names, tx_prj* project) {
  if (names.size() == 0) {
    show_warning(warning_no_new_names);
    return false;
  }
  for (const prjrename_name& entry : names.entries()) {
    if (entry.new_name.empty()) {
      show_warning(warning_empty_name);
      return false;
    }
  }
  tx_progress* progress = tx_progress_create(nullptr);
  tx_entity* whole = project != nullptr ? tx_prj_safe_upcast(project) : nullptr;
  const update_bracket bracket = update_bracket::of_host();
  if (bracket.begin != nullptr && whole != nullptr) bracket.begin(whole);
  const double n = static_cast<double>(names.size());
  double k = 1;
  for (const prjrename_name& entry : names.entries()) {
    if (progress != nullptr) tx_progress_report(progress, k / n);
    k += 1;
    if (tx_entity* entity = tx_entity_storage_find_by_uid(entry.uuid)) {
      tx_entity_set_wcaption(entity, entry.new_name.c_str());
    }
  }
  if (bracket.end != nullptr && whole != nullptr) bracket.end(whole);
  if (progress != nullptr) tx_progress_destroy(progress);
  return true;
}

}  // namespace tx
