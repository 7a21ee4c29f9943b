#include "resources/loader.h"

#include <string_view>

#include "platform/platform.h"
#include "plugin/localizer.h"
#include "resources/bitmap.h"
#include "resources/masked_bitmap.h"
#include "resources/reference.h"
#include "resources/string_visitor.h"
#include "tx/visitors.h"

namespace tx::resource {
namespace {

// The host's localizer when it answers `reference`: only the plug-in's own references go to it.
custom_pointer localizer_for(std::int32_t reference) noexcept {
  return reference > 0 ? localizer() : custom_pointer{};
}

// Keeps the text it is given.
class text_receiver final : public single_interface<string_visitor_impl> {
 public:
  void visit(const char16_t* text) override { text_ = text != nullptr ? text : u""; }

  std::u16string& text() noexcept { return text_; }

 private:
  std::u16string text_;
};

}  // namespace

bool load_string(std::int32_t reference, custom_pointer visitor) noexcept {
  if (const custom_pointer host = localizer_for(reference); present(host)) {
    return call<tx_localizer_interface_1>(host, &tx_localizer_interface_1::load_string, reference,
                                          visitor);
  }
  try {
    const auto where = locate(reference);
    if (!where) return false;
    for (const std::uint32_t id : language_ids(where->id)) {
      const std::u16string_view stored = platform::stored_string(where->module, id);
      if (stored.empty()) continue;
      if (stored.back() == u'\0') {
        visit_text(visitor, stored.data());
      } else {
        // Not terminated in place: a terminated copy.
        std::u16string copy(stored.size() + 1, u'\0');
        platform::copy_string(where->module, id, copy);
        visit_text(visitor, copy.c_str());
      }
      return true;
    }
  } catch (...) {
  }
  return false;
}

bool load_text_data(std::int32_t reference, custom_pointer visitor,
                    std::uint32_t code_page) noexcept {
  if (const custom_pointer host = localizer_for(reference); present(host)) {
    return call<tx_localizer_interface_1>(host, &tx_localizer_interface_1::load_text_data,
                                          reference, visitor, code_page);
  }
  try {
    const auto where = locate(reference);
    if (!where) return false;
    for (const std::uint32_t id : language_ids(where->id)) {
      const auto data = platform::resource_data(where->module, platform::text_data_type, id);
      if (data.empty()) continue;
      const auto text = platform::to_utf16(data, code_page);
      if (!text) continue;
      visit_text(visitor, text->c_str());
      return true;
    }
  } catch (...) {
  }
  return false;
}

bool load_bitmap(std::int32_t reference, custom_pointer visitor, bool stored_order) noexcept {
  if (const custom_pointer host = localizer_for(reference); present(host)) {
    return call<tx_localizer_interface_1>(host, &tx_localizer_interface_1::load_bitmap, reference,
                                          visitor);
  }
  const bitmap image(reference);
  return image.visit(visitor, stored_order);
}

bool load_masked_bitmap(std::int32_t reference, custom_pointer visitor) noexcept {
  masked_bitmap image(reference);
  call<tx_masked_bitmap_visitor_interface_0>(visitor, &tx_masked_bitmap_visitor_interface_0::visit,
                                             pointer_to<masked_bitmap_impl>(&image));
  return image.loaded();
}

std::optional<std::u16string> string(std::int32_t reference) {
  text_receiver receiver;
  if (!load_string(reference, receiver.pointer())) return std::nullopt;
  return std::move(receiver.text());
}

}  // namespace tx::resource
