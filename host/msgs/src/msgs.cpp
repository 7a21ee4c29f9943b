// txk_msgs: warnings go into the record and, unless the host switched the echo off, to stderr;
// progress indicators are recorded objects whose reported fractions are kept in order.
#include "tx_host/msgs.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "tx/host/txk_msgs.h"
#include "tx_host/services/utf.h"

// The SDK's names are exported through the SDK's .def; the host-side names through this mark.
#ifdef _WIN32
#define TX_HOST_SIDE_EXPORT __declspec(dllexport)
#else
#define TX_HOST_SIDE_EXPORT
#endif

// A progress indicator as the plug-in holds it: an opaque handle owned by the record.
struct tx_progress {};

namespace {

struct msgs_record {
  std::mutex mutex;
  // A deque keeps each text in place as more arrive, so that handed-out pointers stay valid.
  std::deque<std::u16string> warnings;
  std::vector<double> reports;
  std::size_t created = 0;
  std::size_t destroyed = 0;
  std::vector<std::unique_ptr<tx_progress>> live;

  bool is_live(const tx_progress* progress) const {
    return std::any_of(live.begin(), live.end(),
                       [progress](const auto& p) { return p.get() == progress; });
  }
};

std::atomic<bool> echo{true};
// Touched on the UI thread only.
tx_host_msgs_presenter presenter{};

msgs_record& record() {
  static msgs_record instance;
  return instance;
}

}  // namespace

extern "C" {

void tx_show_wwarning(const char16_t* text) {
  if (text == nullptr) return;
  try {
    std::u16string copy(text);
    if (echo.load(std::memory_order_relaxed)) {
      const std::string line = "warning: " + tx::host::to_utf8(copy) + "\n";
      std::fwrite(line.data(), 1, line.size(), stderr);
      std::fflush(stderr);
    }
    {
      msgs_record& r = record();
      const std::lock_guard lock(r.mutex);
      r.warnings.push_back(std::move(copy));
    }
    if (presenter.warning != nullptr) presenter.warning(presenter.context, text);
  } catch (...) {
    // Out of memory: the warning is lost, the plug-in goes on.
  }
}

tx_progress* tx_progress_create(void*) {
  try {
    msgs_record& r = record();
    tx_progress* created = nullptr;
    {
      const std::lock_guard lock(r.mutex);
      r.live.push_back(std::make_unique<tx_progress>());
      ++r.created;
      created = r.live.back().get();
    }
    if (presenter.progress_started != nullptr)
      presenter.progress_started(presenter.context, created);
    return created;
  } catch (...) {
    return nullptr;  // "none can be shown"
  }
}

void tx_progress_report(tx_progress* progress, double fraction) {
  try {
    msgs_record& r = record();
    {
      const std::lock_guard lock(r.mutex);
      if (!r.is_live(progress)) return;
      r.reports.push_back(fraction);
    }
    if (presenter.progress_reported != nullptr) {
      presenter.progress_reported(presenter.context, progress, fraction);
    }
  } catch (...) {
  }
}

void tx_progress_destroy(tx_progress* progress) {
  msgs_record& r = record();
  bool ended = false;
  {
    const std::lock_guard lock(r.mutex);
    if (std::erase_if(r.live, [progress](const auto& p) { return p.get() == progress; }) > 0) {
      ++r.destroyed;
      ended = true;
    }
  }
  if (ended && presenter.progress_ended != nullptr)
    presenter.progress_ended(presenter.context, progress);
}

TX_HOST_SIDE_EXPORT size_t tx_host_msgs_warning_count(void) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return r.warnings.size();
}

TX_HOST_SIDE_EXPORT const char16_t* tx_host_msgs_warning(size_t index) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return index < r.warnings.size() ? r.warnings[index].c_str() : nullptr;
}

TX_HOST_SIDE_EXPORT size_t tx_host_msgs_progress_report_count(void) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return r.reports.size();
}

TX_HOST_SIDE_EXPORT double tx_host_msgs_progress_report(size_t index) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return index < r.reports.size() ? r.reports[index] : -1.0;
}

TX_HOST_SIDE_EXPORT size_t tx_host_msgs_progress_created(void) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return r.created;
}

TX_HOST_SIDE_EXPORT size_t tx_host_msgs_progress_destroyed(void) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  return r.destroyed;
}

TX_HOST_SIDE_EXPORT void tx_host_msgs_set_echo(bool on) {
  echo.store(on, std::memory_order_relaxed);
}

TX_HOST_SIDE_EXPORT bool tx_host_msgs_echo(void) { return echo.load(std::memory_order_relaxed); }

TX_HOST_SIDE_EXPORT void tx_host_msgs_set_presenter(const tx_host_msgs_presenter* shown) {
  presenter = shown != nullptr ? *shown : tx_host_msgs_presenter{};
}

TX_HOST_SIDE_EXPORT void tx_host_msgs_clear(void) {
  msgs_record& r = record();
  const std::lock_guard lock(r.mutex);
  r.warnings.clear();
  r.reports.clear();
  r.created = 0;
  r.destroyed = 0;
}

}  // extern "C"
