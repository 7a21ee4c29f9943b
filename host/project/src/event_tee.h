// The parser's events handed to two handlers, the first and then the second: the parse goes on
// while both want it to. The project reader feeds the format watch beside the document reader.
#pragma once

#include <cstdint>

namespace tx::host::detail {

template <class First, class Second>
class event_tee {
 public:
  event_tee(First& first, Second& second) noexcept : first_(first), second_(second) {}

  bool StartObject() {
    return both([](auto& h) { return h.StartObject(); });
  }
  bool EndObject(unsigned members) {
    return both([=](auto& h) { return h.EndObject(members); });
  }
  bool StartArray() {
    return both([](auto& h) { return h.StartArray(); });
  }
  bool EndArray(unsigned elements) {
    return both([=](auto& h) { return h.EndArray(elements); });
  }
  bool Key(const char* text, unsigned length, bool copy) {
    return both([=](auto& h) { return h.Key(text, length, copy); });
  }
  bool String(const char* text, unsigned length, bool copy) {
    return both([=](auto& h) { return h.String(text, length, copy); });
  }
  bool Bool(bool value) {
    return both([=](auto& h) { return h.Bool(value); });
  }
  bool Null() {
    return both([](auto& h) { return h.Null(); });
  }
  bool Int(int value) {
    return both([=](auto& h) { return h.Int(value); });
  }
  bool Uint(unsigned value) {
    return both([=](auto& h) { return h.Uint(value); });
  }
  bool Int64(std::int64_t value) {
    return both([=](auto& h) { return h.Int64(value); });
  }
  bool Uint64(std::uint64_t value) {
    return both([=](auto& h) { return h.Uint64(value); });
  }
  bool Double(double value) {
    return both([=](auto& h) { return h.Double(value); });
  }
  bool RawNumber(const char* text, unsigned length, bool copy) {
    return both([=](auto& h) { return h.RawNumber(text, length, copy); });
  }

 private:
  template <class Event>
  bool both(const Event& event) {
    const bool first = event(first_);
    const bool second = event(second_);
    return first && second;
  }

  First& first_;
  Second& second_;
};

}  // namespace tx::host::detail
