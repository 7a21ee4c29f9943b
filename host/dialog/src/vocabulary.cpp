#include "tx_host/dialog/vocabulary.h"

#include <array>

namespace tx::host::dialog {
namespace {

constexpr std::int32_t kEnglish = 50000;

constexpr vocabulary kRussian{"Инструменты", "история", "—", "недоступно", "Предупреждение"};
constexpr vocabulary kEnglishWords{"Tools", "history", "—", "disabled", "Warning"};

struct shared_string {
  std::int32_t id;
  std::string_view russian;
  std::string_view english;
};

// The host's shared strings, from the same source as txk_basic's resources.
#define TX_STRING(id, english_id, russian, english) {id, russian, english},
#define TX_STRING_UNTERMINATED(id, english_id, russian, english) {id, russian, english},
constexpr shared_string kSharedStrings[] = {
#include "strings.inc"
};
#undef TX_STRING
#undef TX_STRING_UNTERMINATED

}  // namespace

const vocabulary& vocabulary_for(std::int32_t language_offset) noexcept {
  return language_offset == kEnglish ? kEnglishWords : kRussian;
}

std::string_view host_string(std::int32_t id, std::int32_t language_offset) noexcept {
  for (const shared_string& s : kSharedStrings) {
    if (s.id == id) return language_offset == kEnglish ? s.english : s.russian;
  }
  return {};
}

button_role role_of(std::string_view caption, std::int32_t language_offset) noexcept {
  if (caption.empty()) return button_role::other;
  if (caption == host_string(99, language_offset) || caption == host_string(101, language_offset)) {
    return button_role::accept;
  }
  if (caption == host_string(100, language_offset) ||
      caption == host_string(102, language_offset)) {
    return button_role::close;
  }
  return button_role::other;
}

}  // namespace tx::host::dialog
