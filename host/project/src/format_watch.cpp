#include "format_watch.h"

#include "document_text.h"

namespace tx::host::detail {
namespace {

void keep_first(std::optional<project_file_error>& kept, std::string where, std::string what) {
  if (!kept) kept = project_file_error{std::move(where), std::move(what)};
}

}  // namespace

void format_watch::check(json_type type, std::string_view text) {
  if (key_ == top_key::format) {
    if (type != json_type::string) {
      keep_first(format_fault_, "/format", type_mismatch(json_type::string, type));
    } else if (text != project_format_name) {
      keep_first(format_fault_, "/format",
                 "unknown format \"" + printable(text) + "\" (expected \"" +
                     std::string(project_format_name) + "\")");
    }
  } else if (key_ == top_key::version) {
    if (type != json_type::integer) {
      keep_first(version_fault_, "/version", type_mismatch(json_type::integer, type));
    } else if (text != std::to_string(project_format_version)) {
      keep_first(version_fault_, "/version",
                 "unsupported version " + std::string(text) + " (this host reads version " +
                     std::to_string(project_format_version) + ")");
    }
  }
}

bool format_watch::StartObject() {
  if (depth_ == 0) top_is_object_ = true;
  if (at_top()) check(json_type::object);
  ++depth_;
  return true;
}

bool format_watch::EndObject(unsigned) {
  --depth_;
  if (depth_ == 0 && top_is_object_) {
    if (!format_seen_) keep_first(format_fault_, "/format", "missing");
    if (!version_seen_) keep_first(version_fault_, "/version", "missing");
  }
  return true;
}

bool format_watch::StartArray() {
  if (at_top()) check(json_type::array);
  ++depth_;
  return true;
}

bool format_watch::EndArray(unsigned) {
  --depth_;
  return true;
}

bool format_watch::Key(const char* text, unsigned length, bool) {
  if (!at_top()) return true;
  const std::string_view key(text, length);
  key_ = key == "format" ? top_key::format : key == "version" ? top_key::version : top_key::other;
  format_seen_ = format_seen_ || key_ == top_key::format;
  version_seen_ = version_seen_ || key_ == top_key::version;
  return true;
}

bool format_watch::String(const char* text, unsigned length, bool) {
  if (at_top()) check(json_type::string, std::string_view(text, length));
  return true;
}

}  // namespace tx::host::detail
