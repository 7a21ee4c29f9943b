// The document's values that are not containers: captions, meta ids and uuids into the new
// project's nodes, booleans into its flags; numbers and null only to be refused.
#include <utility>

#include "document_reader.h"
#include "document_text.h"
#include "tx_host/project/uuid_text.h"
#include "tx_host/services/utf.h"

namespace tx::host::detail {

bool document_reader::String(const char* text, unsigned length, bool) {
  if (const std::optional<slot> what = begin_value(json_type::string)) {
    read_text(*what, std::string_view(text, length));
  }
  return !located_;
}

void document_reader::read_text(slot what, std::string_view text) {
  if (what == slot::uuid) {
    read_uuid(text);
    return;
  }
  if (what != slot::caption && what != slot::meta_id) return;  // the format: watched
  if (const char16_t unit = unpaired_surrogate(text)) {
    refuse(pointer_to_value(),
           escaped_unit(unit) + " is half of a surrogate pair, not a character");
    return;
  }
  if (what == slot::caption) {
    frames_.back().entity->caption = keep_caption(text);
  } else {
    frames_.back().collection->meta_id.assign(text);
  }
}

std::u16string_view document_reader::keep_caption(std::string_view text) {
  chunked_buffer<char16_t>& captions = project_->memory.captions;
  char16_t* const start = captions.room(text.size() + 1);
  const std::size_t length = to_utf16(text, start);
  start[length] = u'\0';
  captions.give_back(text.size() - length);
  return {start, length};
}

void document_reader::read_uuid(std::string_view text) {
  const std::optional<std::uint64_t> value = uuid_from_text(text);
  if (!value) {
    refuse(pointer_to_value(),
           "not a uuid: \"" + printable(text) + "\" (expected 1 to 16 hexadecimal digits)");
    return;
  }
  if (*value == 0) {
    refuse(pointer_to_value(), "the null uuid names no element");
    return;
  }
  tx_entity& entity = *frames_.back().entity;
  entity.uuid = tx_uuid{*value};
  if (const std::optional<std::size_t> first = storage_.add(entity)) {
    duplicate_of_ = *first;
    refuse(pointer_to_value(), "duplicate uuid " + uuid_to_text(entity.uuid) + " (first at ");
    return;
  }
  if (locate_ && added_ == *locate_) located_ = pointer_to_value();
  ++added_;
}

bool document_reader::Bool(bool value) {
  const std::optional<slot> what = begin_value(json_type::boolean);
  if (what == slot::invert_layers) {
    project_->invert_layers = value;
  } else if (what == slot::group) {
    frames_.back().group->is_group = value;
  } else if (what == slot::expanded) {
    frames_.back().group->expanded = value;
  }
  return true;
}

bool document_reader::Null() {
  begin_value(json_type::null);  // no key takes null
  return true;
}

bool document_reader::Double(double) {
  begin_value(json_type::number);  // no key takes a fraction
  return true;
}

bool document_reader::integer() {
  begin_value(json_type::integer);  // only the version, which the format watch checks
  return true;
}

}  // namespace tx::host::detail
