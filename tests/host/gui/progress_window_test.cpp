// The progress window over the dialog while a commit writes its names. The commit's reports go
// through txk_msgs as the plug-in's commit makes them, with real time passing between them: a
// commit that lasts past the delay gets one window owned by the dialog, shown over it, whose bar
// follows the reports and which is gone when the commit ends; a short commit gets none.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dialog_controls.h"
#include "message_presenter.h"
#include "screenshot.h"
#include "tx/host/txk_msgs.h"
#include "tx_host/gui/window_surface.h"

namespace tx::test {
namespace {

using host::gui::progress_delay_ms;

// The windows of this thread that `owner` owns, other than those it owned already (the
// tooltips of its controls).
std::vector<HWND> owned_by(HWND owner, const std::vector<HWND>& already = {}) {
  struct search {
    HWND owner;
    const std::vector<HWND>& already;
    std::vector<HWND> found;
  } wanted{owner, already, {}};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM context) -> BOOL {
        auto& s = *reinterpret_cast<search*>(context);
        if (GetWindow(window, GW_OWNER) == s.owner &&
            std::find(s.already.begin(), s.already.end(), window) == s.already.end()) {
          s.found.push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&wanted));
  return wanted.found;
}

// What a person sees of a progress window, read from its native windows.
struct progress_look {
  bool visible = false;
  std::wstring caption;
  RECT frame{};
  RECT bar{};     // in the window's client coordinates
  RECT client{};  // the window's client area
  int position = -1;
  int range = 0;
};

progress_look look_at(HWND window) {
  progress_look look;
  look.visible = IsWindowVisible(window) != FALSE;
  wchar_t caption[256]{};
  GetWindowTextW(window, caption, 256);
  look.caption = caption;
  GetWindowRect(window, &look.frame);
  GetClientRect(window, &look.client);
  HWND bar = FindWindowExW(window, nullptr, PROGRESS_CLASSW, nullptr);
  if (bar == nullptr || !IsWindowVisible(bar)) return look;
  GetWindowRect(bar, &look.bar);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&look.bar), 2);
  look.position = static_cast<int>(SendMessageW(bar, PBM_GETPOS, 0, 0));
  look.range = static_cast<int>(SendMessageW(bar, PBM_GETRANGE, FALSE, 0));
  return look;
}

bool inside(const RECT& inner, const RECT& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

class progress_window : public dialog_window {
 protected:
  void SetUp() override {
    dialog_window::SetUp();
    if (IsSkipped() || HasFatalFailure()) return;
    host::gui::start_common_controls();
    presenter = std::make_unique<host::gui::message_presenter>(window, 0, false);
    tooltips = owned_by(window);
  }
  void TearDown() override {
    presenter.reset();
    dialog_window::TearDown();
  }

  std::unique_ptr<host::gui::message_presenter> presenter;
  std::vector<HWND> tooltips;
};

TEST_F(progress_window, AShortCommitShowsNone) {
  // Three reports take far less than the delay, unless the machine stalls for all of it: then
  // the commit is run again.
  for (int attempt = 0; attempt < 3; ++attempt) {
    const ULONGLONG before = GetTickCount64();
    tx_progress* progress = tx_progress_create(nullptr);
    ASSERT_NE(progress, nullptr);
    std::size_t most_shown = 0;
    for (int k = 1; k <= 3; ++k) {
      tx_progress_report(progress, k / 3.0);
      most_shown = std::max(most_shown, owned_by(window, tooltips).size());
    }
    const ULONGLONG took = GetTickCount64() - before;
    tx_progress_destroy(progress);
    if (took >= progress_delay_ms) continue;
    EXPECT_EQ(most_shown, 0u);
    EXPECT_TRUE(owned_by(window, tooltips).empty());
    return;
  }
  GTEST_SKIP() << "every short commit was held up past the delay";
}

struct lasting_commit {
  const char* name;  // of the screenshot
  const wchar_t* title;
};

TEST_F(progress_window, ALastingCommitShowsTheBarOverTheDialogUntilItEnds) {
  const lasting_commit commits[] = {
      {"progress-ru", L"Переименование элементов проекта"},
      {"progress-en", L"Rename Project Elements"},
  };
  // Reports a thousandth at a time, a few milliseconds apart until the window has shown a few
  // steps, then as fast as they come.
  constexpr int n = 1000;
  constexpr int slow_steps_shown = 20;
  for (const lasting_commit& c : commits) {
    SCOPED_TRACE(c.name);
    SetWindowTextW(window, c.title);
    RECT dialog{};
    GetWindowRect(window, &dialog);
    const ULONGLONG before = GetTickCount64();
    tx_progress* progress = tx_progress_create(nullptr);
    const ULONGLONG created = GetTickCount64();
    ASSERT_NE(progress, nullptr);
    HWND shown = nullptr;
    int shown_at = 0;
    int position = -1;
    for (int k = 1; k <= n; ++k) {
      SCOPED_TRACE("report " + std::to_string(k));
      const double fraction = static_cast<double>(k) / n;
      const ULONGLONG reporting = GetTickCount64();
      tx_progress_report(progress, fraction);
      const ULONGLONG reported = GetTickCount64();
      const std::vector<HWND> owned = owned_by(window, tooltips);
      ASSERT_LE(owned.size(), 1u);
      if (owned.empty()) {
        // Only a commit younger than the delay may still go without the window.
        ASSERT_EQ(shown, nullptr) << "the progress window went away before the commit ended";
        ASSERT_LT(reporting - created, progress_delay_ms) << "no progress window yet";
        Sleep(2);
        continue;
      }
      const progress_look look = look_at(owned.front());
      if (shown == nullptr) {
        ASSERT_GE(reported - before, progress_delay_ms) << "shown before the delay";
        shown = owned.front();
        shown_at = k;
        EXPECT_TRUE(look.visible);
        EXPECT_EQ(look.caption, c.title);
        EXPECT_TRUE(inside(look.frame, dialog));
        ASSERT_GT(look.range, 0) << "the window has no progress bar";
        EXPECT_TRUE(inside(look.bar, look.client));
      }
      ASSERT_EQ(owned.front(), shown) << "one window for the whole commit";
      // The bar stands where the report says, to one step of its range, and never goes back.
      ASSERT_LE(std::abs(static_cast<double>(look.position) / look.range - fraction),
                1.0 / look.range);
      ASSERT_GE(look.position, position);
      position = look.position;
      if (k - shown_at == slow_steps_shown) {
        const std::filesystem::path folder =
            std::filesystem::path(TX_TEST_OUTPUT_DIR) / "screenshots";
        std::filesystem::create_directories(folder);
        EXPECT_EQ(host::gui::save_screenshot(shown, (folder / c.name).string() + ".png"), "");
      }
      if (k - shown_at < slow_steps_shown) Sleep(2);
    }
    ASSERT_NE(shown, nullptr) << "the commit ended without a progress window";
    EXPECT_EQ(position, look_at(shown).range) << "the bar is full at the last report";
    tx_progress_destroy(progress);
    EXPECT_FALSE(IsWindow(shown));
    EXPECT_TRUE(owned_by(window, tooltips).empty());
  }
}

}  // namespace
}  // namespace tx::test
