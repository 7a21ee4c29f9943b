// Reading a project document as the JSON parser streams it, event by event, straight into a new
// project: no document tree is built. Every value is checked as it arrives (its key known, its
// type right, a uuid well-formed and new), and where it is stands in a stack of the objects and
// arrays open around it, from which a refusal names its place as a JSON pointer.
//
// The first fault found is kept and the rest of the document is then only followed, not read:
// the parse goes on to the end so that broken JSON further on is still told first. The format
// and version are the format watch's (format_watch.h), which the parser feeds beside this reader.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document_keys.h"
#include "tx_host/project/entity_storage.h"
#include "tx_host/project/nodes.h"
#include "tx_host/project/project_file.h"

namespace tx::host::detail {

class document_reader {
 public:
  // With `locate`, the reader stops at the uuid that is the `locate`-th element added (counted
  // from 0) and keeps where it stands: where a duplicate's first uuid is.
  explicit document_reader(std::optional<std::size_t> locate = std::nullopt);

  // The parser's events. False stops the parse: only past a fault, in nesting too deep to follow,
  // or once `locate` is found.
  bool StartObject();
  bool EndObject(unsigned members);
  bool StartArray();
  bool EndArray(unsigned elements);
  bool Key(const char* text, unsigned length, bool copy);
  bool String(const char* text, unsigned length, bool copy);
  bool Bool(bool value);
  bool Null();
  bool Int(int) { return integer(); }
  bool Uint(unsigned) { return integer(); }
  bool Int64(std::int64_t) { return integer(); }
  bool Uint64(std::uint64_t) { return integer(); }
  bool Double(double);
  bool RawNumber(const char*, unsigned, bool) { return false; }  // numbers are parsed

  // The first fault found, if any (the format and version are not this reader's).
  const std::optional<project_file_error>& fault() const noexcept { return fault_; }
  // For a duplicate uuid (the fault then ends "(first at "): the first element that has it.
  std::optional<std::size_t> duplicate_of() const noexcept { return duplicate_of_; }
  // With `locate`: the JSON pointer of that uuid, once found.
  const std::optional<std::string>& located() const noexcept { return located_; }

  // The project read, and its elements by uuid; only when no fault was found.
  std::unique_ptr<tx_prj> take_project() noexcept { return std::move(project_); }
  entity_storage take_storage() noexcept { return std::move(storage_); }

 private:
  struct frame {
    std::span<const field_spec> fields;  // an object's known keys; empty for an array
    slot what;
    key_set seen{};                          // an object's keys read so far
    std::size_t key = 0;                     // an object's key being read, an index into `fields`
    std::size_t count = 0;                   // an array's elements begun
    tx_entity* entity = nullptr;             // whose caption and uuid an object holds
    std::vector<tx_scn*>* scenes = nullptr;  // where an object's or array's scenes go
    tx_scns_2d* collection = nullptr;        // a plug-in's collection: its meta id
    tx_scn* scene = nullptr;                 // a scene: its root layer group
    tx_lr_group* group = nullptr;            // a layer, or a list of layers: whose children
    std::size_t depth = 0;                   // a layer, or a list of layers: its level
    bool has(slot s) const noexcept;
  };

  // The slot of the value now starting, once its type was checked; nullopt past a fault.
  std::optional<slot> begin_value(json_type type);
  // Any integer: only the version is one, and that is the format watch's.
  bool integer();

  // Objects and arrays (document_reader.cpp).
  void open_object(slot what);
  void open_array(slot what);
  void close_object();
  void start_layers(tx_lr_group& group, std::size_t level);
  void close_layers(const frame& layers);

  // Texts and uuids (document_values.cpp).
  void read_text(slot what, std::string_view text);
  void read_uuid(std::string_view text);
  std::u16string_view keep_caption(std::string_view text);

  // The JSON pointer of the value being read in the innermost `frames` open containers.
  std::string pointer(std::size_t frames) const;
  std::string pointer_to_value() const { return pointer(frames_.size()); }
  std::string pointer_to_key(std::string_view key) const;
  void refuse(std::string where, std::string what);

  std::unique_ptr<tx_prj> project_;
  entity_storage storage_;
  std::vector<frame> frames_;
  // Each level's layers read so far, until its list ends and they move into the project's
  // child lists side by side (the vectors keep their room from one list to the next).
  std::vector<std::vector<tx_lr_group*>> pending_;

  std::size_t depth_ = 0;  // containers open, whether read or only followed
  bool faulted_ = false;
  std::size_t added_ = 0;  // elements added to the storage
  std::optional<project_file_error> fault_;
  std::optional<std::size_t> duplicate_of_;
  std::optional<std::size_t> locate_;
  std::optional<std::string> located_;
};

}  // namespace tx::host::detail
