// The project's format and version, watched apart from the rest of the document. The watch is a
// handler of the parser's events of its own, fed beside the document_reader (event_tee.h), and
// looks only at the two keys of the document's top object: it follows every event to the end,
// whatever the reader refused before, so that a file of another format or of a newer version is
// told as such rather than by whatever else is wrong in it. The reader leaves both keys to it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "json_type.h"
#include "tx_host/project/project_file.h"

namespace tx::host::detail {

class format_watch {
 public:
  // The parser's events; the watch never stops the parse.
  bool StartObject();
  bool EndObject(unsigned members);
  bool StartArray();
  bool EndArray(unsigned elements);
  bool Key(const char* text, unsigned length, bool copy);
  bool String(const char* text, unsigned length, bool copy);
  bool Bool(bool) { return scalar(json_type::boolean); }
  bool Null() { return scalar(json_type::null); }
  bool Int(int value) { return integer(value); }
  bool Uint(unsigned value) { return integer(value); }
  bool Int64(std::int64_t value) { return integer(value); }
  bool Uint64(std::uint64_t value) { return integer(value); }
  bool Double(double) { return scalar(json_type::number); }
  bool RawNumber(const char*, unsigned, bool) { return false; }  // numbers are parsed

  // The first fault found in the format, and in the version.
  const std::optional<project_file_error>& format_fault() const noexcept { return format_fault_; }
  const std::optional<project_file_error>& version_fault() const noexcept { return version_fault_; }

 private:
  enum class top_key : std::uint8_t { other, format, version };

  // A value directly in the document's object.
  bool at_top() const noexcept { return depth_ == 1 && top_is_object_; }
  // Checks a value starting at the top: `text` is a string's, or an integer's decimal digits.
  void check(json_type type, std::string_view text = {});
  bool scalar(json_type type) {
    if (at_top()) check(type);
    return true;
  }
  template <typename Integer>
  bool integer(Integer value) {
    if (at_top()) check(json_type::integer, std::to_string(value));
    return true;
  }

  std::size_t depth_ = 0;  // containers open
  bool top_is_object_ = false;
  top_key key_ = top_key::other;  // the key read last in the document's object
  bool format_seen_ = false;
  bool version_seen_ = false;
  std::optional<project_file_error> format_fault_;
  std::optional<project_file_error> version_fault_;
};

}  // namespace tx::host::detail
