# cmake -DRC=<file.rc> -DOUTPUT=<table.cpp> -DEXPORTED=ON|OFF -P embed_resources.cmake
#
# Writes the native resource table of the module whose resources <file.rc> describes: its string
# tables compiled as UTF-16 literals, stored as windres stores them, and its files as byte
# arrays. See resource_table.h for the layout.
include(${CMAKE_CURRENT_LIST_DIR}/rc_manifest.cmake)
tx_rc_manifest(${RC} includes entries)

set(code "// Generated from ${RC} by embed_resources.cmake: edit the .rc and the files it names.
#include <array>
#include <cstdint>
#include <string_view>

#include \"platform/posix/resource_table.h\"
#include \"tx/abi.h\"

namespace {

using tx::platform::data_resource;
using tx::platform::string_resource;

")

if(includes)
  # The string tables' two forms, as the .rc defines them for windres: with the NUL stored and
  # counted after each text, and without it.
  string(APPEND code [=[
#define TX_RESOURCE_STRING(id, text) \
  string_resource { id, text, sizeof(text) / sizeof(char16_t) - 1 }
#define TX_STRING(id, id_en, ru, en) \
  TX_RESOURCE_STRING(id, u"" ru "\0"), TX_RESOURCE_STRING(id_en, u"" en "\0"),
#define TX_STRING_UNTERMINATED(id, id_en, ru, en) \
  TX_RESOURCE_STRING(id, u"" ru), TX_RESOURCE_STRING(id_en, u"" en),

constexpr auto strings = tx::platform::sorted(std::to_array<string_resource>({
]=])
  foreach(include IN LISTS includes)
    string(APPEND code "#include \"${include}\"\n")
  endforeach()
  string(APPEND code "}));\n")
else()
  string(APPEND code "constexpr std::array<string_resource, 0> strings{};\n")
endif()
string(APPEND code "static_assert(tx::platform::unique_keys(strings), \"a string id is used twice\");\n\n")

set(rows "")
set(index 0)
foreach(entry IN LISTS entries)
  string(REPLACE "|" ";" parts "${entry}")
  list(GET parts 0 type)
  list(GET parts 1 id)
  list(GET parts 2 file)
  file(READ ${file} hex HEX)
  if(hex STREQUAL "")
    message(FATAL_ERROR "${RC}: the resource file ${file} is empty")
  endif()
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
  string(REPEAT "0x..," 16 line)
  string(REGEX REPLACE "(${line})" "\\1\n    " bytes "${bytes}")
  string(APPEND code "// ${file}\nconstexpr std::uint8_t data_${index}[] = {\n    ${bytes}};\n")
  string(APPEND rows "    data_resource{${type}, ${id}, data_${index}, sizeof(data_${index})},\n")
  math(EXPR index "${index} + 1")
endforeach()
if(rows)
  string(APPEND code "\nconstexpr auto data = tx::platform::sorted(std::to_array<data_resource>({\n${rows}}));\n")
else()
  string(APPEND code "constexpr std::array<data_resource, 0> data{};\n")
endif()
string(APPEND code "static_assert(tx::platform::unique_keys(data), \"a resource id is used twice\");

constexpr tx::platform::resource_table table{strings.data(), strings.size(), data.data(),
                                             data.size()};

}  // namespace

")

if(EXPORTED)
  string(APPEND code "static_assert(std::string_view(tx::platform::exported_table_symbol) ==
              \"tx_module_resources\");
TX_HOST_API const tx::platform::resource_table tx_module_resources = table;
")
else()
  string(APPEND code "const tx::platform::resource_table* tx::platform::own_resources() noexcept {
  return &table;
}
")
endif()

file(WRITE ${OUTPUT} "${code}")
