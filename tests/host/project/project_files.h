// What the project tests share: where the example and refused files are, a scratch folder of
// the test's own, and captions read as a plug-in reads them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"

namespace tx::host::testing {

// examples/NAME and tests/host/project/bad/NAME, as UTF-8 paths for tx_host_project_load.
std::string example(const std::string& name);
std::string bad_file(const std::string& name);
std::filesystem::path bad_folder();

// A fresh, empty folder for the running test, in the build tree (each test runs in a process
// of its own, possibly beside others, so every test has its own folder).
std::filesystem::path scratch_folder();
std::string utf8(const std::filesystem::path& path);

// The whole content of a file, or empty when it cannot be read.
std::string read_file(const std::filesystem::path& path);

// What opening `document` (written to project.json in `folder`) is refused with, after the
// file's name: "WHERE: WHAT", or "WHAT" when the whole file is meant; empty when it opens.
std::string refusal_of(const std::filesystem::path& folder, const std::string& document);

// A caption fetched through a string adapter into the caller's string, which starts out as
// "<untouched>" (so that a getter that writes nothing is seen).
template <typename Handle>
std::u16string caption(Handle* handle, void (*get)(Handle*, tx_string_adp*)) {
  std::u16string text = u"<untouched>";
  tx_string_adp* adapter =
      tx_string_adp_create(&text, [](void* target, const char16_t* t, size_t length) {
        static_cast<std::u16string*>(target)->assign(t, length);
      });
  get(handle, adapter);
  tx_string_adp_destroy(adapter);
  return text;
}

inline std::u16string caption(tx_entity* entity) {
  return caption(entity, &tx_entity_get_wcaption);
}

// The live element with the uuid `value`, or null.
inline tx_entity* find(std::uint64_t value) {
  return tx_entity_storage_find_by_uid(tx_uuid{value});
}

}  // namespace tx::host::testing
