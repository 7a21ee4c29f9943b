// Multi-byte text to UTF-16 natively with iconv, the Windows code page named by its iconv name.
#include <iconv.h>

#include <bit>
#include <cstring>
#include <string>

#include "platform/platform.h"

namespace tx::platform {
namespace {

// The iconv name of a Windows code page: the few whose names differ, else "CP<number>".
std::string iconv_name(std::uint32_t code_page) {
  switch (code_page) {
    case 65001:
      return "UTF-8";
    case 1200:
      return "UTF-16LE";
    case 1201:
      return "UTF-16BE";
    case 20127:
      return "US-ASCII";
    case 20866:
      return "KOI8-R";
    case 21866:
      return "KOI8-U";
    case 28603:
      return "ISO-8859-13";
    case 28605:
      return "ISO-8859-15";
    default:
      break;
  }
  if (code_page >= 28591 && code_page <= 28599) {
    return "ISO-8859-" + std::to_string(code_page - 28590);
  }
  return "CP" + std::to_string(code_page);
}

class converter {
 public:
  explicit converter(const std::string& from) noexcept
      : handle_(iconv_open(std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE",
                           from.c_str())) {}
  converter(const converter&) = delete;
  converter& operator=(const converter&) = delete;
  ~converter() {
    if (valid()) iconv_close(handle_);
  }

  bool valid() const noexcept { return handle_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t get() const noexcept { return handle_; }

 private:
  iconv_t handle_;
};

}  // namespace

std::optional<std::u16string> to_utf16(std::span<const std::byte> text, std::uint32_t code_page) {
  if (text.empty()) return std::u16string{};
  const converter conversion(iconv_name(code_page));
  if (!conversion.valid()) return std::nullopt;
  // Four output bytes an input byte are more than any code page needs.
  std::string output(text.size() * 4, '\0');
  std::string input(reinterpret_cast<const char*>(text.data()), text.size());
  char* in = input.data();
  std::size_t in_left = input.size();
  char* out = output.data();
  std::size_t out_left = output.size();
  if (iconv(conversion.get(), &in, &in_left, &out, &out_left) == static_cast<std::size_t>(-1) ||
      in_left != 0) {
    return std::nullopt;
  }
  const std::size_t bytes = output.size() - out_left;
  std::u16string wide(bytes / sizeof(char16_t), u'\0');
  std::memcpy(wide.data(), output.data(), wide.size() * sizeof(char16_t));
  return wide;
}

}  // namespace tx::platform
