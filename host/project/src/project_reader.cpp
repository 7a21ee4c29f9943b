// Reading a project file: the JSON parser streams the document into a document_reader, which
// builds the project as it goes, and beside it into the format watch. A refusal names the file's
// place: the line and column of broken JSON, or the JSON pointer of a value the project cannot
// take.
#include <rapidjson/error/en.h>
#include <rapidjson/filereadstream.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <array>
#include <cctype>
#include <system_error>
#include <vector>

#include "c_file.h"
#include "document_reader.h"
#include "event_tee.h"
#include "format_watch.h"
#include "tx_host/project/project_file.h"

namespace tx::host {
namespace {

using detail::document_reader;
using detail::format_watch;

// The parser checks that every string is UTF-8, and keeps its own stack rather than recursing,
// so that no nesting can exhaust the thread's stack.
constexpr unsigned parse_flags =
    rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t read_buffer_size = 64 * 1024;

// The parser takes a NUL byte for the end of the text, so a document that stops before the
// last byte is followed by something else, which is refused.
template <typename Stream>
rapidjson::ParseResult parse_stream(Stream& stream, format_watch& watch, document_reader& reader,
                                    std::size_t size) {
  rapidjson::Reader parser;
  detail::event_tee<format_watch, document_reader> both(watch, reader);
  rapidjson::ParseResult result = parser.Parse<parse_flags>(stream, both);
  if (!result.IsError() && stream.Tell() < size) {
    result.Set(rapidjson::kParseErrorDocumentRootNotSingular, stream.Tell());
  }
  return result;
}

// Line and column (both from 1, the column in characters) of the byte after the text fed.
class text_position {
 public:
  void feed(std::string_view text) noexcept {
    for (const char c : text) {
      if (c == '\n') {
        ++line_;
        column_ = 1;
      } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
        ++column_;
      }
    }
  }
  std::string describe() const {
    return "line " + std::to_string(line_) + ", column " + std::to_string(column_);
  }

 private:
  std::size_t line_ = 1;
  std::size_t column_ = 1;
};

// The parser's own words for broken JSON, as a message goes on: "missing a comma or '}' after
// an object member".
std::string syntax_message(rapidjson::ParseErrorCode code) {
  std::string text = rapidjson::GetParseError_En(code);
  if (!text.empty() && text.back() == '.') text.pop_back();
  if (!text.empty()) text.front() = static_cast<char>(std::tolower(text.front()));
  return text;
}

// Where the document comes from: parsed once, and again when a refusal needs more of it.
class document_source {
 public:
  virtual ~document_source() = default;
  // Offsets in the result count from the document's start.
  virtual rapidjson::ParseResult parse(format_watch& watch, document_reader& reader) = 0;
  virtual std::string position(std::size_t offset) = 0;
};

class text_source final : public document_source {
 public:
  explicit text_source(std::string_view text) : text_(text) {
    if (text_.starts_with(byte_order_mark)) text_.remove_prefix(byte_order_mark.size());
  }
  rapidjson::ParseResult parse(format_watch& watch, document_reader& reader) override {
    rapidjson::MemoryStream stream(text_.data(), text_.size());
    return parse_stream(stream, watch, reader, text_.size());
  }
  std::string position(std::size_t offset) override {
    text_position at;
    at.feed(text_.substr(0, offset));
    return at.describe();
  }

 private:
  std::string_view text_;
};

class file_source final : public document_source {
 public:
  file_source(std::FILE* file, std::size_t size) : file_(file), size_(size) {}

  rapidjson::ParseResult parse(format_watch& watch, document_reader& reader) override {
    start();
    rapidjson::FileReadStream stream(file_, buffer_.data(), buffer_.size());
    return parse_stream(stream, watch, reader, size_ - skipped_);
  }
  std::string position(std::size_t offset) override {
    start();
    text_position at;
    while (offset > 0) {
      const std::size_t wanted = std::min(offset, buffer_.size());
      const std::size_t got = std::fread(buffer_.data(), 1, wanted, file_);
      at.feed(std::string_view(buffer_.data(), got));
      if (got < wanted) break;
      offset -= got;
    }
    return at.describe();
  }
  bool failed() const noexcept { return std::ferror(file_) != 0; }

 private:
  // Back to the first byte of the document, past a byte order mark.
  void start() {
    std::rewind(file_);
    std::array<char, 3> first{};
    const std::size_t got = std::fread(first.data(), 1, first.size(), file_);
    skipped_ = std::string_view(first.data(), got) == byte_order_mark ? got : 0;
    std::fseek(file_, static_cast<long>(skipped_), SEEK_SET);
  }

  std::FILE* file_;
  std::size_t size_;
  std::size_t skipped_ = 0;
  std::vector<char> buffer_ = std::vector<char>(read_buffer_size);
};

// The project read, or null with `error` set: broken JSON first, then a wrong format, a wrong
// version, and the first other fault.
std::unique_ptr<tx_prj> finish(document_source& source, const format_watch& watch,
                               document_reader& reader, const rapidjson::ParseResult& result,
                               project_file_error& error, entity_storage* index) {
  if (result.IsError() && result.Code() != rapidjson::kParseErrorTermination) {
    error = {source.position(result.Offset()), syntax_message(result.Code())};
    return nullptr;
  }
  if (const auto& fault = watch.format_fault()) {
    error = *fault;
    return nullptr;
  }
  if (const auto& fault = watch.version_fault()) {
    error = *fault;
    return nullptr;
  }
  if (const auto& fault = reader.fault()) {
    error = *fault;
    if (const std::optional<std::size_t> first = reader.duplicate_of()) {
      // Where the first element with the uuid stands: read the document again up to it.
      // The format and version were found right on the first reading: not watched again.
      document_reader locator(*first);
      format_watch unused;
      source.parse(unused, locator);
      error.what += locator.located().value_or("?") + ")";
    }
    return nullptr;
  }
  if (result.IsError()) {
    error = {"", "nested too deeply"};
    return nullptr;
  }
  if (index != nullptr) *index = reader.take_storage();
  return reader.take_project();
}

}  // namespace

std::unique_ptr<tx_prj> parse_project(std::string_view text, project_file_error& error,
                                      entity_storage* index) {
  text_source source(text);
  format_watch watch;
  document_reader reader;
  const rapidjson::ParseResult result = source.parse(watch, reader);
  return finish(source, watch, reader, result, error, index);
}

std::unique_ptr<tx_prj> read_project_file(const std::filesystem::path& path,
                                          project_file_error& error, entity_storage* index) {
  std::error_code ec;
  const std::filesystem::file_status status = std::filesystem::status(path, ec);
  if (!std::filesystem::exists(status)) {
    error = {"", "no such file"};
    return nullptr;
  }
  if (std::filesystem::is_directory(status)) {
    error = {"", "is a folder, not a project file"};
    return nullptr;
  }
  const std::uintmax_t size = std::filesystem::file_size(path, ec);
  const detail::c_file file = detail::open_c_file(path, "rb");
  if (!file || ec) {
    error = {"", "cannot be opened"};
    return nullptr;
  }
  file_source source(file.get(), static_cast<std::size_t>(size));
  format_watch watch;
  document_reader reader;
  const rapidjson::ParseResult result = source.parse(watch, reader);
  if (source.failed()) {
    error = {"", "cannot be read"};
    return nullptr;
  }
  return finish(source, watch, reader, result, error, index);
}

}  // namespace tx::host
