// The rename dialog over examples/city.json, open in-process, with a top-level window holding the
// window host's outline and toolbar controls over its elements. Each element is given a view that
// hands what it tells to its control at once, and the window hands its notifications to the
// controls, as the dialog window does.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "element/project_rename_widget.h"
#include "outline_control.h"
#include "refreshing_view.h"
#include "toolbar_control.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/basic.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"
#include "tx_host/services/interface_object.h"

namespace tx::test {

using host::gui::refreshing_view;

// The dialog's outline and toolbar, found as the window finds them.
class leaves final : public host::dialog::element_listener {
 public:
  void leaf(const host::dialog::element& e) override {
    if (e.kind == host::dialog::element_kind::outline) outline = e.pair;
    if (e.kind == host::dialog::element_kind::toolbar) toolbar = e.pair;
  }
  tx_custom_pointer outline{};
  tx_custom_pointer toolbar{};
};

class dialog_window : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // What the text host prints of the outline and the toolbar now, read from the plug-in.
  std::vector<std::string> text_rows() const;
  std::string text_toolbar() const;
  // What the controls print, read from their windows.
  std::vector<std::string> window_rows() const;
  std::string window_toolbar() const;
  // The row the text host finds at `address`.
  tx_custom_pointer row(const std::string& address) const;
  // The window's pixels, also written to TX_TEST_OUTPUT_DIR/screenshots/NAME.bmp for a person.
  std::vector<COLORREF> screenshot(const std::string& name, RECT& area) const;
  // Runs what the window's messages ask until none is left.
  static void pump();

  std::unique_ptr<project_rename_widget> widget;
  HWND window = nullptr;
  HFONT font = nullptr;
  HFONT bold = nullptr;
  tx_custom_pointer outline{};
  tx_custom_pointer toolbar{};
  std::unique_ptr<host::gui::toolbar_control> tools;
  std::unique_ptr<host::gui::outline_control> rows;
  std::unique_ptr<refreshing_view> tools_view;
  std::unique_ptr<refreshing_view> rows_view;
};

}  // namespace tx::test
