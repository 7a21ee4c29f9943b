// Stand-ins for the outline and the toolbar controls until their own land: the outline as a
// list box of the rows in the text host's form, the toolbar as one line of static text. Their
// script actions do what the text host's driver does. They carry the names and the interface
// the window expects of the real ones, so that the window is built against that contract.
#pragma once

#include <string>
#include <string_view>

#include "tx/abi.h"
#include "tx_host/gui/control.h"

namespace tx::host::gui {

class outline_control final : public control {
 public:
  outline_control(HWND parent, tx_custom_pointer outline, const metrics& m);
  ~outline_control() override;
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

  std::string tick(std::string_view address, bool on);
  std::string select(std::string_view address, bool on);
  std::string expand(std::string_view address, bool on);
  std::string rename(std::string_view address, std::string_view text, bool enter);

 private:
  tx_custom_pointer outline_;
  HWND list_;
};

class toolbar_control final : public control {
 public:
  toolbar_control(HWND parent, tx_custom_pointer toolbar, const metrics& m);
  ~toolbar_control() override;
  size_request request(const metrics& m) const override;
  void place(const RECT& area) override;
  void show(bool shown) override;
  void refresh(std::uint32_t changes) override;
  void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const override;

  std::string click(std::string_view tool);
  std::string describe() const;

 private:
  tx_custom_pointer toolbar_;
  HWND line_;
  int language_offset_ = 0;
};

}  // namespace tx::host::gui
