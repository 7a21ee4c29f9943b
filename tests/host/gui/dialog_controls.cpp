#include "dialog_controls.h"

#include <filesystem>
#include <fstream>

#include "native.h"
#include "tx_host/dialog/toolbar_format.h"
#include "tx_host/dialog/vocabulary.h"
#include "tx_host/gui/window_surface.h"

namespace tx::test {
namespace {

// The controls of the window being tested, to which it hands its notifications.
std::vector<host::gui::control*> shown_controls;

}  // namespace

void dialog_window::SetUp() {
  ASSERT_TRUE(tx_host_project_load(TX_EXAMPLES_DIR "/city.json")) << tx_host_project_error();
  tx_host_set_lng(0);
  tx_host_msgs_clear();
  widget = std::make_unique<project_rename_widget>();
  widget->open();
  leaves found;
  host::dialog::walk(widget->layout(), found, host::dialog::walk_scope::shown);
  outline = found.outline;
  toolbar = found.toolbar;
  ASSERT_TRUE(host::present(outline) && host::present(toolbar));

  host::gui::start_common_controls();
  window = host::gui::make_controls_window(L"Переименование элементов проекта", 640, 600,
                                           shown_controls);
  // Wine without an X server has no window station to show windows on.
  if (window == nullptr) GTEST_SKIP() << "no display: run under an X server (xvfb-run -a)";
  NONCLIENTMETRICSW system{};
  system.cbSize = sizeof(system);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(system), &system, 0);
  font = CreateFontIndirectW(&system.lfMessageFont);
  system.lfMessageFont.lfWeight = FW_BOLD;
  bold = CreateFontIndirectW(&system.lfMessageFont);
  host::gui::metrics m;
  m.font = font;
  m.bold_font = bold;
  tools = std::make_unique<host::gui::toolbar_control>(window, toolbar, m);
  rows = std::make_unique<host::gui::outline_control>(window, outline, m);
  shown_controls = {tools.get(), rows.get()};
  tools_view = std::make_unique<refreshing_view>(*tools);
  rows_view = std::make_unique<refreshing_view>(*rows);
  host::gui::view_toolbar(toolbar, tools_view->pair());
  host::gui::view_outline(outline, rows_view->pair());

  RECT client{};
  GetClientRect(window, &client);
  const int margin = m.dlu_x(7);
  const int bar = tools->request(m).height;
  tools->place({margin, margin, client.right - margin, margin + bar});
  rows->place({margin, margin + bar + m.dlu_y(2), client.right - margin, client.bottom - margin});
  ShowWindow(window, SW_SHOW);
  UpdateWindow(window);
  pump();
}

void dialog_window::TearDown() {
  if (host::present(outline)) host::gui::view_outline(outline, tx_custom_pointer{});
  if (host::present(toolbar)) host::gui::view_toolbar(toolbar, tx_custom_pointer{});
  shown_controls.clear();
  rows.reset();
  tools.reset();
  if (window != nullptr) DestroyWindow(window);
  if (font != nullptr) DeleteObject(font);
  if (bold != nullptr) DeleteObject(bold);
  widget.reset();
  pump();
}

void dialog_window::pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

std::vector<std::string> dialog_window::text_rows() const {
  return host::dialog::render_rows(host::dialog::outline_reader(outline));
}

std::string dialog_window::text_toolbar() const {
  return host::dialog::format_toolbar(host::dialog::vocabulary_for(0).tools,
                                      host::dialog::tool_values_of(toolbar));
}

std::vector<std::string> dialog_window::window_rows() const {
  std::vector<std::string> lines;
  rows->print(lines, host::dialog::vocabulary_for(0));
  return lines;
}

std::string dialog_window::window_toolbar() const {
  std::vector<std::string> lines;
  tools->print(lines, host::dialog::vocabulary_for(0));
  return lines.size() == 1 ? lines.front() : std::string();
}

tx_custom_pointer dialog_window::row(const std::string& address) const {
  return host::dialog::find_row(host::dialog::outline_reader(outline), address).row;
}

std::vector<COLORREF> dialog_window::screenshot(const std::string& name, RECT& area) const {
  pump();
  UpdateWindow(window);
  GetClientRect(window, &area);
  const int width = area.right;
  const int height = area.bottom;
  HDC screen = GetDC(window);
  HDC copy = CreateCompatibleDC(screen);
  const BITMAPINFO info = host::gui::top_down_header(width, height);
  std::uint32_t* source = nullptr;
  HBITMAP bitmap = host::gui::top_down_bitmap(width, height, &source);
  HGDIOBJ old = SelectObject(copy, bitmap);
  BitBlt(copy, 0, 0, width, height, screen, 0, 0, SRCCOPY);
  GdiFlush();
  std::vector<COLORREF> pixels(static_cast<std::size_t>(width) * height);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    pixels[i] = RGB((source[i] >> 16) & 0xFF, (source[i] >> 8) & 0xFF, source[i] & 0xFF);
  }
  // A 32-bit bottom-up .bmp for a person to look at.
  const std::filesystem::path folder = std::filesystem::path(TX_TEST_OUTPUT_DIR) / "screenshots";
  std::filesystem::create_directories(folder);
  std::ofstream out(folder / (name + ".bmp"), std::ios::binary);
  BITMAPFILEHEADER file{};
  BITMAPINFOHEADER header = info.bmiHeader;
  header.biHeight = height;
  const std::uint32_t size = static_cast<std::uint32_t>(pixels.size() * 4);
  file.bfType = 0x4D42;
  file.bfOffBits = sizeof(file) + sizeof(header);
  file.bfSize = file.bfOffBits + size;
  out.write(reinterpret_cast<const char*>(&file), sizeof(file));
  out.write(reinterpret_cast<const char*>(&header), sizeof(header));
  for (int y = height - 1; y >= 0; --y) {
    out.write(reinterpret_cast<const char*>(source + static_cast<std::size_t>(y) * width),
              static_cast<std::streamsize>(width) * 4);
  }
  SelectObject(copy, old);
  DeleteObject(bitmap);
  DeleteDC(copy);
  ReleaseDC(window, screen);
  return pixels;
}

}  // namespace tx::test
