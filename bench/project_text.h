// What the benchmarks' generated project files are written with: compact JSON text gathered in
// a string and handed to the stream a scene at a time, elements numbered by uuid from 1 on, and a
// count of the elements still to write. Each generator derives its own shape from it.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

namespace tx::bench {

class project_text {
 protected:
  project_text(std::ostream& out, std::size_t elements) : out_(out), left_(elements) {}

  // `{"uuid":"…","caption":"` with the next uuid, 16 hexadecimal digits; one element fewer left.
  void open_element() {
    char digits[16];
    const auto end = std::to_chars(digits, digits + 16, next_uuid_++, 16).ptr;
    text_ += R"({"uuid":")";
    text_.append(16 - static_cast<std::size_t>(end - digits), '0');
    text_.append(digits, end);
    text_ += R"(","caption":")";
    --left_;
  }

  void number(std::size_t value) {
    char digits[24];
    const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    text_.append(digits, static_cast<std::size_t>(end - digits));
  }

  // "FIRST.SECOND"
  void path(std::size_t first, std::size_t second) {
    number(first);
    text_ += '.';
    number(second);
  }

  void flush() {
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
  }

  std::ostream& out_;
  std::size_t left_;
  std::uint64_t next_uuid_ = 1;
  std::string text_;
};

}  // namespace tx::bench
