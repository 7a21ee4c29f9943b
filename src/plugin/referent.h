// Reference counting across the boundary.
//
// An object that another party may hold beyond one call is a referent<I>: it implements its
// principal interface I and "tx_referent_interface_1". It keeps, in order of attachment, the
// pairs of its referrers and lets itself be destroyed when the last of them no longer holds it.
// The plug-in's own holders of such objects are ref<T, N>: referrers that attach on acquiring
// and detach on release; a ref<T, 1> holds the referent alive, a ref<T, 0> only watches it and
// is cleared when it dies.
#pragma once

#include <cstddef>
#include <vector>

#include "plugin/interface.h"
#include "tx/referent.h"

namespace tx {

template <>
struct interface_traits<tx_referent_interface_1> {
  static constexpr const char* name = TX_REFERENT_INTERFACE_1;
};
template <>
struct interface_traits<tx_referrer_interface_1> {
  static constexpr const char* name = TX_REFERRER_INTERFACE_1;
};

class referent_impl : public interface_impl {
 public:
  using table_type = tx_referent_interface_1;
  static constexpr const char* interface_name = TX_REFERENT_INTERFACE_1;
  static const table_type* table() noexcept;

  virtual std::size_t attach(custom_pointer referrer) = 0;
  virtual void detach(custom_pointer referrer) = 0;
  virtual custom_pointer principal() = 0;
  virtual custom_pointer referrer_at(std::size_t index) = 0;

 protected:
  ~referent_impl() = default;
};

class referrer_impl : public interface_impl {
 public:
  using table_type = tx_referrer_interface_1;
  static constexpr const char* interface_name = TX_REFERRER_INTERFACE_1;
  static const table_type* table() noexcept;

  virtual void released(custom_pointer referent) = 0;
  virtual bool holds(custom_pointer referent) = 0;

 protected:
  ~referrer_impl() = default;
};

// The referrer list and its attach/detach rules, shared by every referent.
class objbase : public referent_impl {
 public:
  // Appends the referrer; the length error "list<T> too long" past the list's maximum.
  std::size_t attach(custom_pointer referrer) override;
  // Removes the first equal entry, asks the others whether one still holds this object (an
  // entry with a null half counts as holding, without a call) and, when none does, tells each
  // of them and destroys this object. A detach made while the others are being asked goes
  // straight to telling and destroying.
  void detach(custom_pointer referrer) override;
  custom_pointer referrer_at(std::size_t index) override;

  std::size_t referrer_count() const noexcept { return referrers_.size(); }

 protected:
  objbase() = default;
  // Frees the list without telling anybody.
  ~objbase();

 private:
  // Tells every remaining referrer with both halves, then deletes this object.
  void release_all() noexcept;
  virtual void destroy() noexcept = 0;

  std::vector<custom_pointer> referrers_;
  bool busy_ = false;
  // Set by an outer detach while it asks the referrers, so that it learns when a nested detach
  // destroyed this object under it.
  bool* destroyed_flag_ = nullptr;
};

// The virtual base of every referent: destroyed through its deleting destructor.
class obj : public objbase {
 public:
  obj() = default;
  obj(const obj&) = delete;
  obj& operator=(const obj&) = delete;
  virtual ~obj() = default;

 private:
  void destroy() noexcept override { delete this; }
};

// A referent whose principal interface is I (an _impl class).
template <class I>
class referentbase : public I, public virtual obj {
 public:
  int query(const char* name, const void** table, void** object) noexcept override {
    if (match<I>(this, name, table, object) == 0) return 0;
    return match<referent_impl>(static_cast<obj*>(this), name, table, object);
  }
  custom_pointer root() noexcept override { return root_of(static_cast<I*>(this)); }
  custom_pointer principal() override { return pointer_to<I>(this); }
  // This object's "tx_referent_interface_1" pair.
  custom_pointer referent_pointer() noexcept {
    return pointer_to<referent_impl>(static_cast<obj*>(this));
  }

 protected:
  referentbase() = default;
};

template <class I>
class referent : public referentbase<I> {
 protected:
  referent() = default;
};

namespace detail {

// The untyped part of ref<T, N>: the held pairs and the attach/detach calls.
class ref_base : public referrer_impl {
 public:
  ref_base(const ref_base&) = delete;
  ref_base& operator=(const ref_base&) = delete;

  int query(const char* name, const void** table, void** object) noexcept override {
    return match<referrer_impl>(this, name, table, object);
  }
  custom_pointer root() noexcept override { return root_of(static_cast<referrer_impl*>(this)); }
  void released(custom_pointer referent) noexcept override;

  // The held pair (null when nothing is held).
  custom_pointer get() const noexcept { return held_; }
  explicit operator bool() const noexcept { return present(held_); }
  // Drops what is held (detaching), then holds `held` when present: asks it for its referent
  // and attaches to it. A pair without a referent is held without attaching.
  void reset(custom_pointer held = {}) noexcept;

 protected:
  ref_base() = default;
  ~ref_base() { reset(); }

 private:
  custom_pointer held_{};
  custom_pointer referent_{};
};

}  // namespace detail

// Holds a pair of interface table type T. N = 1 keeps the referent alive (answers "still
// holding" when asked); N = 0 only watches it and is cleared when it is destroyed.
template <class T, int N>
class ref final : public detail::ref_base {
  static_assert(N == 0 || N == 1, "two flavours of holding");

 public:
  ref() = default;
  explicit ref(custom_pointer held) { reset(held); }
  bool holds(custom_pointer) noexcept override { return N == 1; }
};

}  // namespace tx
