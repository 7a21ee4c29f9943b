// The name store's text: every name it holds, kept once in chunks that never move, and the
// handles through which entries, changes and tree nodes share it instead of copying it.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace tx {

namespace detail {
// The empty name as the store keeps every name: its length in two code units, then the
// zero-terminated text.
inline constexpr char16_t empty_text_record[3] = {0, 0, 0};
}  // namespace detail

// One name in a prjrename_text_arena (or the empty name): zero-terminated UTF-16 that is never
// changed and never moves while its arena lives. Copying a handle copies a pointer, not text.
class prjrename_text {
 public:
  constexpr prjrename_text() noexcept = default;

  std::u16string_view view() const noexcept { return {chars_, size()}; }
  // The text, zero-terminated, as a sink or the host's caption setter wants it.
  const char16_t* c_str() const noexcept { return chars_; }
  std::size_t size() const noexcept {
    return static_cast<std::size_t>(chars_[-2]) | static_cast<std::size_t>(chars_[-1]) << 16;
  }
  bool empty() const noexcept { return size() == 0; }

 private:
  friend class prjrename_text_arena;
  constexpr explicit prjrename_text(const char16_t* chars) noexcept : chars_(chars) {}

  // The first code unit; the two before it hold the length, low half first.
  const char16_t* chars_ = detail::empty_text_record + 2;
};

// An append-only store of names. Each name is copied in once, with its length before it and a
// terminating zero after it, into the current chunk; a chunk that is full is left as it is and a
// new one started, so the text of a handle stays where it is until the arena is destroyed.
class prjrename_text_arena {
 public:
  prjrename_text_arena() = default;
  prjrename_text_arena(const prjrename_text_arena&) = delete;
  prjrename_text_arena& operator=(const prjrename_text_arena&) = delete;

  // Copies `text` in. Throws std::length_error for a text of 2^32 code units or more.
  prjrename_text add(std::u16string_view text);

 private:
  // Code units per chunk; a longer name gets a chunk of its own.
  static constexpr std::size_t chunk_units = 32 * 1024;

  std::vector<std::unique_ptr<char16_t[]>> chunks_;
  char16_t* free_ = nullptr;  // the next free code unit of the last chunk
  std::size_t left_ = 0;      // free code units from there
};

}  // namespace tx
