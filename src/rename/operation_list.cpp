#include "rename/operation_list.h"

#include "rename/case_change.h"
#include "rename/erase.h"
#include "rename/find_replace.h"
#include "rename/insert.h"

namespace tx {

prjrename_operation_list::prjrename_operation_list() {
  operations_.push_back(std::make_unique<prjrename_find_replace>());
  operations_.push_back(std::make_unique<prjrename_case_change>());
  operations_.push_back(std::make_unique<prjrename_insert>());
  operations_.push_back(std::make_unique<prjrename_erase>());
}

std::vector<prjrename_operation*> prjrename_operation_list::active() const {
  std::vector<prjrename_operation*> list;
  for (const auto& operation : operations_) {
    if (!operation->is_idle()) list.push_back(operation.get());
  }
  return list;
}

}  // namespace tx
