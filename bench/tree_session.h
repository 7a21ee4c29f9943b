// One scale project of the tree benchmarks, open in the reference host, with what the dialog
// holds over it: the element tree, the name store and the operations. The tree measures time
// one call at a time against it and bring it back, untimed, to the ready state:
//   - the tree built from the project, every element ticked;
//   - the store holding one step, the find and replace of «layer» by «слой» over every element
//     (so every element has an entry), nothing to redo;
//   - the host's captions as loaded, its records (caption writes, bracket, progress) empty.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include "rename/operation_list.h"
#include "tree/names.h"
#include "tree/tree_item.h"

namespace tx::bench {

class tree_session {
 public:
  // Opens the project of `elements` elements, writing it into `folder` first when needed.
  tree_session(const std::filesystem::path& folder, std::size_t elements);
  tree_session(const tree_session&) = delete;
  tree_session& operator=(const tree_session&) = delete;

  // Empty when the project is open; otherwise why it is not.
  const std::string& error() const noexcept { return error_; }
  std::size_t elements() const noexcept { return elements_; }

  // A fresh tree with every element ticked.
  void build_ticked_tree();
  // Find and replace set to «layer» → «слой» (the execute step empties its inputs).
  void set_find_replace();
  // Brings the session to the ready state from wherever a measure left it.
  void make_ready();
  // Writes every entry's new name (or old name) into the project, straight through the host, as
  // many writes as the commit makes.
  void write_names(bool new_names);
  // Writes every entry's old name back into the project and empties the host's records.
  void restore_captions();

  std::unique_ptr<prjrename_tree_group> root;
  std::unique_ptr<prjrename_names> names;
  prjrename_operation_list operations;

 private:
  std::size_t elements_;
  std::string error_;
};

}  // namespace tx::bench
