// tx::event<void()>: a signal without arguments.
//
// Each observer is a shared object (one allocation with its reference count); subscribing
// returns a connection that ends the subscription when it is disconnected or destroyed. Either
// side may go first: a connection outliving its event does nothing, an event outliving a
// connection skips that observer. Emitting works on a copy of the observer list, so an observer
// may connect or disconnect others (or itself) while the signal runs; those connected during an
// emission are first called by the next one.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace tx {

namespace events {

// What a subscriber holds: the handle through which its subscription ends.
class connection_base {
 public:
  connection_base() = default;
  connection_base(const connection_base&) = delete;
  connection_base& operator=(const connection_base&) = delete;
  virtual ~connection_base() = default;

  virtual void disconnect() noexcept = 0;
  virtual bool connected() const noexcept = 0;
};

using connection = std::unique_ptr<connection_base>;

}  // namespace events

template <class Signature>
class event;

template <>
class event<void()> {
  struct observer {
    std::function<void()> call;
    bool live = true;
  };

 public:
  class connection_impl final : public events::connection_base {
   public:
    explicit connection_impl(std::weak_ptr<observer> target) : target_(std::move(target)) {}
    ~connection_impl() override { disconnect(); }
    void disconnect() noexcept override {
      if (const auto o = target_.lock()) o->live = false;
      target_.reset();
    }
    bool connected() const noexcept override {
      const auto o = target_.lock();
      return o && o->live;
    }

   private:
    std::weak_ptr<observer> target_;
  };

  event() = default;
  event(const event&) = delete;
  event& operator=(const event&) = delete;

  // Subscribes `call`; the subscription lasts as long as the returned connection.
  [[nodiscard]] events::connection connect(std::function<void()> call) {
    auto o = std::make_shared<observer>(observer{std::move(call), true});
    std::erase_if(observers_, [](const auto& entry) { return !entry->live; });
    observers_.push_back(o);
    return std::make_unique<connection_impl>(o);
  }

  // Calls every observer still connected, in order of connection.
  void operator()() const {
    const std::vector<std::shared_ptr<observer>> snapshot = observers_;
    for (const auto& o : snapshot) {
      if (o->live) o->call();
    }
  }

  std::size_t observer_count() const noexcept {
    std::size_t n = 0;
    for (const auto& o : observers_) n += o->live ? 1 : 0;
    return n;
  }

 private:
  std::vector<std::shared_ptr<observer>> observers_;
};

}  // namespace tx
