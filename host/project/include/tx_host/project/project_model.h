// The open project of the reference host with everything the host keeps beside it: the entity
// storage, the update bracket and the record of caption writes. One instance per process lives
// in txk_prj (see host/libs/src/project_instance.cpp); the other host libraries reach it only
// through txk_prj's functions. UI thread only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tx_host/project/caption_log.h"
#include "tx_host/project/entity_storage.h"
#include "tx_host/project/nodes.h"
#include "tx_host/project/update_bracket.h"

namespace tx::host {

class project_model {
 public:
  // Opens the project file at `path` (UTF-8). On success it replaces the open project and the
  // records start afresh; on failure nothing changes and error() tells why.
  bool load(std::string_view path);
  // Writes the open project to `path` (UTF-8); on failure error() tells why.
  bool save(std::string_view path);
  // "FILE: WHERE: WHAT" for the last failed load or save, empty after a success.
  const std::string& error() const noexcept { return error_; }
  // No project is open afterwards.
  void close() noexcept;

  // The open project, or null.
  tx_prj* project() const noexcept { return project_.get(); }
  // The live element with `uuid`, or null.
  tx_entity* find(tx_uuid uuid) const noexcept { return storage_.find(uuid); }
  // Takes the scene, group or layer with `uuid` out of the project (see tx_host_project_remove).
  bool remove(tx_uuid uuid);
  // Sets the caption, records the write and notifies. Nothing changes if recording fails.
  void set_caption(tx_entity& entity, std::u16string_view caption);
  void set_invert_layers(bool on) noexcept;

  update_bracket& bracket() noexcept { return bracket_; }
  const caption_log& caption_writes() const noexcept { return writes_; }
  // Forgets the caption writes and the bracket's counts, and lets go of the captions that
  // renames replaced, which only the records still pointed at.
  void clear_records() noexcept;

 private:
  bool load_or_throw(std::string_view path);
  bool save_or_throw(std::string_view path);

  // Elements removed from the open project stay in its memory until it closes, so that handles
  // a plug-in still holds stay readable.
  std::unique_ptr<tx_prj> project_;
  entity_storage storage_;
  update_bracket bracket_;
  caption_log writes_;
  std::string error_;
};

}  // namespace tx::host
