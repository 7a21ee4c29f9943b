// The rename dialog over examples/city.json as the window host shows it: the plug-in's widget in a
// docker, a button box with "Применить" and "Закрыть", and the dialog window over them, in-process.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "dialog_window.h"
#include "element/project_rename_widget.h"
#include "toolkit/button_box.h"
#include "toolkit/docker.h"
#include "tx_host/basic.h"
#include "tx_host/gui/window_surface.h"
#include "tx_host/project.h"

namespace tx::test {

class open_dialog : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(tx_host_project_load(TX_EXAMPLES_DIR "/city.json")) << tx_host_project_error();
    tx_host_set_lng(0);
    frame = std::make_unique<toolkit::docker<project_rename_widget>>(0);
    frame->widget().open();
    host::gui::start_common_controls();
    window =
        std::make_unique<host::gui::dialog_window>(frame->pointer(), buttons.pointer(), 0, nullptr);
    // Wine without an X server has no window station to show windows on.
    if (window->handle() == nullptr) GTEST_SKIP() << "no display: run under an X server";
    window->pump();
  }
  void TearDown() override {
    window.reset();
    frame.reset();
  }

  std::unique_ptr<toolkit::docker<project_rename_widget>> frame;
  toolkit::button_box buttons{2 | 8};  // Применить, Закрыть
  std::unique_ptr<host::gui::dialog_window> window;
};

}  // namespace tx::test
