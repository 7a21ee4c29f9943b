// Strings and raw resource data natively: binary searches in the module's generated table,
// answering exactly what LoadStringW and FindResourceW answer for the same .rc.
#include <algorithm>

#include "platform/platform.h"
#include "platform/posix/resource_table.h"

namespace tx::platform {
namespace {

const resource_table& table_of(module from) noexcept {
  return *static_cast<const resource_table*>(from.handle());
}

const string_resource* find_string(module from, std::uint32_t id) noexcept {
  if (!from || id > max_resource_id) return nullptr;
  const resource_table& table = table_of(from);
  const std::span<const string_resource> strings(table.strings, table.string_count);
  const auto found = std::lower_bound(
      strings.begin(), strings.end(), id,
      [](const string_resource& entry, std::uint32_t key) { return entry.id < key; });
  return found != strings.end() && found->id == id ? &*found : nullptr;
}

}  // namespace

std::u16string_view stored_string(module from, std::uint32_t id) noexcept {
  const string_resource* const found = find_string(from, id);
  if (found == nullptr || found->length == 0) return {};
  return {found->text, found->length};
}

std::size_t copy_string(module from, std::uint32_t id, std::span<char16_t> buffer) noexcept {
  const string_resource* const found = find_string(from, id);
  if (found == nullptr || buffer.size() < 2) return 0;
  // As LoadStringW: as many counted units as fit before the terminating NUL.
  const std::size_t copied = std::min<std::size_t>(found->length, buffer.size() - 1);
  std::copy_n(found->text, copied, buffer.begin());
  buffer[copied] = u'\0';
  return copied;
}

std::span<const std::byte> resource_data(module from, std::uint32_t type,
                                         std::uint32_t id) noexcept {
  if (!from || id == 0 || id > max_resource_id || type == 0 || type > max_resource_id) return {};
  const resource_table& table = table_of(from);
  const std::span<const data_resource> data(table.data, table.data_count);
  const data_resource key{type, id, nullptr, 0};
  const auto found = std::lower_bound(
      data.begin(), data.end(), key,
      [](const data_resource& a, const data_resource& b) { return key_less(a, b); });
  if (found == data.end() || found->type != type || found->id != id) return {};
  return std::as_bytes(std::span<const std::uint8_t>(found->bytes, found->size));
}

}  // namespace tx::platform
