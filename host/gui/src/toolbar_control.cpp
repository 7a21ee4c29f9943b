#include "toolbar_control.h"

#include <algorithm>

#include "tool_picture.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/toolbar_format.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

constexpr wchar_t kStripClass[] = L"tx_host_tool_strip";
constexpr int kFirstCommand = 1000;

void register_strip(WNDPROC procedure) {
  static const bool registered = [procedure] {
    WNDCLASSEXW type{};
    type.cbSize = sizeof(type);
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = kStripClass;
    return RegisterClassExW(&type) != 0;
  }();
  (void)registered;
}

// The text of the button with `command`, however long: the toolbar is asked its length first,
// then for the text into room for it.
std::u16string button_text(HWND bar, int command) {
  const LRESULT length = SendMessageW(bar, TB_GETBUTTONTEXTW, command, 0);
  if (length <= 0) return {};
  std::vector<wchar_t> buffer(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(bar, TB_GETBUTTONTEXTW, command, reinterpret_cast<LPARAM>(buffer.data()));
  buffer.back() = L'\0';
  return std::u16string(reinterpret_cast<const char16_t*>(buffer.data()));
}

}  // namespace

// What a button shows, read back from the toolbar.
struct toolbar_control::button_values {
  dialog::tool_values values;
  int command = 0;
};

toolbar_control::toolbar_control(HWND parent, tx_custom_pointer toolbar, const metrics& m)
    : toolbar_(toolbar), side_(GetSystemMetrics(SM_CXSMICON)) {
  register_strip(&strip_procedure);
  strip_ = CreateWindowExW(WS_EX_CONTROLPARENT, kStripClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                           parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (strip_ == nullptr) return;
  SetWindowLongPtrW(strip_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  // The toolbar is the tab stop: the strip, a control parent, lets the dialog manager reach it.
  bar_ = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"",
                         WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBSTYLE_FLAT | TBSTYLE_LIST |
                             TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN,
                         0, 0, 0, 0, strip_, nullptr, GetModuleHandleW(nullptr), nullptr);
  keyboard_ = window_subclass(
      bar_, [this](UINT message, WPARAM w, LPARAM l) { return on_bar_message(message, w, l); });
  SendMessageW(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  SendMessageW(bar_, WM_SETFONT, reinterpret_cast<WPARAM>(m.font), FALSE);
  // Only a tool without a picture shows its caption; the others have theirs as the button text
  // that the toolbar keeps, and their hints as tooltips.
  SendMessageW(bar_, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  SendMessageW(bar_, TB_SETBITMAPSIZE, 0, MAKELPARAM(side_, side_));
  tips_ = reinterpret_cast<HWND>(SendMessageW(bar_, TB_GETTOOLTIPS, 0, 0));
  if (tips_ == nullptr) {
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, strip_,
                            nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(bar_, TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(tips_), 0);
  }
  load();
}

toolbar_control::~toolbar_control() {
  keyboard_ = window_subclass();
  if (strip_ != nullptr) {
    SetWindowLongPtrW(strip_, GWLP_USERDATA, 0);
    DestroyWindow(strip_);
  }
  if (tips_ != nullptr && IsWindow(tips_)) DestroyWindow(tips_);
}

LRESULT CALLBACK toolbar_control::strip_procedure(HWND strip, UINT message, WPARAM wparam,
                                                  LPARAM lparam) {
  auto* self = reinterpret_cast<toolbar_control*>(GetWindowLongPtrW(strip, GWLP_USERDATA));
  if (self != nullptr && message == WM_COMMAND && reinterpret_cast<HWND>(lparam) == self->bar_ &&
      HIWORD(wparam) == BN_CLICKED) {
    self->invoke(LOWORD(wparam));
    return 0;
  }
  if (self != nullptr && message == WM_NOTIFY) {
    auto& header = *reinterpret_cast<NMHDR*>(lparam);
    if (header.hwndFrom == self->bar_ && header.code == NM_CUSTOMDRAW) {
      return self->draw_button(reinterpret_cast<NMTBCUSTOMDRAW&>(header));
    }
  }
  return DefWindowProcW(strip, message, wparam, lparam);
}

void toolbar_control::load() {
  while (SendMessageW(bar_, TB_BUTTONCOUNT, 0, 0) > 0) SendMessageW(bar_, TB_DELETEBUTTON, 0, 0);
  SendMessageW(bar_, TB_SETIMAGELIST, 0, 0);
  SendMessageW(bar_, TB_SETDISABLEDIMAGELIST, 0, 0);
  pictures_.reset(ImageList_Create(side_, side_, ILC_COLOR24 | ILC_MASK, 8, 8));
  greyed_.reset(ImageList_Create(side_, side_, ILC_COLOR24 | ILC_MASK, 8, 8));
  SendMessageW(bar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_.get()));
  SendMessageW(bar_, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(greyed_.get()));

  tools_.clear();
  std::vector<TBBUTTON> buttons;
  std::vector<std::u16string> texts;
  const std::vector<dialog::tool_entry> entries = dialog::tools_of(toolbar_);
  texts.reserve(entries.size());
  int group = entries.empty() ? 0 : entries.front().group;
  for (const dialog::tool_entry& entry : entries) {
    if (entry.group != group) {
      TBBUTTON separator{};
      separator.fsStyle = BTNS_SEP;
      separator.idCommand = 0;
      buttons.push_back(separator);
      group = entry.group;
    }
    tool t{entry.id, entry.tool, kFirstCommand + static_cast<int>(tools_.size()), false, false, {}};
    tool_picture picture;
    int image = I_IMAGENONE;
    if (call(entry.tool, &tx_action_tool_interface_0::image, picture.pair()) && picture.size()) {
      const unique_bitmap plain(picture.fitted(side_, false));
      const unique_bitmap grey(picture.fitted(side_, true));
      image = ImageList_AddMasked(pictures_.get(), plain.get(), picture.corner());
      ImageList_AddMasked(greyed_.get(), grey.get(), picture.corner());
      t.picture = picture.size();
    }
    const std::optional<std::string> caption = dialog::tool_caption(entry.tool);
    t.captioned = caption.has_value();
    texts.push_back(to_utf16(caption.value_or(entry.id)));
    TBBUTTON button{};
    button.iBitmap = image;
    button.idCommand = t.command;
    button.fsState = static_cast<BYTE>((dialog::tool_enabled(entry.tool) ? TBSTATE_ENABLED : 0) |
                                       (dialog::tool_visible(entry.tool) ? 0 : TBSTATE_HIDDEN));
    button.fsStyle =
        static_cast<BYTE>(BTNS_BUTTON | BTNS_AUTOSIZE | (image == I_IMAGENONE ? BTNS_SHOWTEXT : 0));
    button.iString = reinterpret_cast<INT_PTR>(texts.back().c_str());
    buttons.push_back(button);
    tools_.push_back(std::move(t));
  }
  if (!buttons.empty()) {
    SendMessageW(bar_, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
  }
  read_texts();
  fit_text_buttons();
  SendMessageW(bar_, TB_AUTOSIZE, 0, 0);
}

void toolbar_control::fit_text_buttons() {
  // A button that shows its caption is as wide as the caption with a margin on each side; it
  // keeps no room for a picture it does not have (see draw_text_button).
  HDC dc = GetDC(bar_);
  HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(bar_, WM_GETFONT, 0, 0)));
  for (const tool& t : tools_) {
    if (t.picture) continue;
    const std::u16string text = window_logic::without_marker(button_text(bar_, t.command));
    SIZE size{};
    GetTextExtentPoint32W(dc, reinterpret_cast<const wchar_t*>(text.c_str()),
                          static_cast<int>(text.size()), &size);
    TBBUTTONINFOW info{};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_SIZE | TBIF_STYLE;
    info.fsStyle = BTNS_BUTTON | BTNS_SHOWTEXT;
    info.cx = static_cast<WORD>(size.cx + side_);
    SendMessageW(bar_, TB_SETBUTTONINFOW, t.command, reinterpret_cast<LPARAM>(&info));
  }
  SelectObject(dc, old);
  ReleaseDC(bar_, dc);
}

LRESULT toolbar_control::draw_button(NMTBCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage == CDDS_ITEMPOSTPAINT) {
    draw_focus(draw);
    return CDRF_DODEFAULT;
  }
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const tool* t = tool_of(static_cast<int>(draw.nmcd.dwItemSpec));
  if (t == nullptr || t->picture) return CDRF_NOTIFYPOSTPAINT;
  // The toolbar would set the caption off by a picture's width: the caption is drawn here,
  // centred, in a flat button's frame.
  RECT r = draw.nmcd.rc;
  const UINT state = draw.nmcd.uItemState;
  if ((state & CDIS_SELECTED) != 0) {
    DrawEdge(draw.nmcd.hdc, &r, BDR_SUNKENOUTER, BF_RECT);
    OffsetRect(&r, 1, 1);
  } else if ((state & CDIS_HOT) != 0 && (state & CDIS_DISABLED) == 0) {
    DrawEdge(draw.nmcd.hdc, &r, BDR_RAISEDINNER, BF_RECT);
  }
  // The text carries the access key's marker: underlined, unless the system hides access keys
  // until Alt is pressed and it has not been.
  const std::u16string text = button_text(bar_, t->command);
  UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
  if ((SendMessageW(bar_, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0) format |= DT_HIDEPREFIX;
  HGDIOBJ old =
      SelectObject(draw.nmcd.hdc, reinterpret_cast<HFONT>(SendMessageW(bar_, WM_GETFONT, 0, 0)));
  SetBkMode(draw.nmcd.hdc, TRANSPARENT);
  SetTextColor(draw.nmcd.hdc,
               GetSysColor((state & CDIS_DISABLED) != 0 ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
  DrawTextW(draw.nmcd.hdc, reinterpret_cast<const wchar_t*>(text.c_str()),
            static_cast<int>(text.size()), &r, format);
  SelectObject(draw.nmcd.hdc, old);
  draw_focus(draw);
  return CDRF_SKIPDEFAULT;
}

void toolbar_control::read_texts() {
  for (tool& t : tools_) {
    const std::optional<std::string> caption = dialog::tool_caption(t.pair);
    t.captioned = caption.has_value();
    const std::u16string shown = to_utf16(caption.value_or(t.id));
    // Every text with its '&' doubled; a tool that shows its caption marks its key in it.
    const window_logic::assigned_key& key = key_for(t);
    const std::u16string text = window_logic::with_marker(shown, t.picture ? std::nullopt : key);
    TBBUTTONINFOW info{};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT;
    info.pszText = const_cast<wchar_t*>(reinterpret_cast<const wchar_t*>(text.c_str()));
    SendMessageW(bar_, TB_SETBUTTONINFOW, t.command, reinterpret_cast<LPARAM>(&info));
    // The tooltip shows the hint; a tool without one has none, unless it is shown as a picture
    // and has an access key: its tooltip tells the key after the hint, or after its caption.
    const std::optional<std::string> hinted = dialog::tool_hint(t.pair);
    t.hinted = hinted.has_value();
    std::u16string hint = to_utf16(hinted.value_or(""));
    if (t.picture && key) hint = window_logic::with_key_hint(t.hinted ? hint : shown, key->letter);
    TTTOOLINFOW tip{};
    tip.cbSize = sizeof(tip);
    tip.hwnd = bar_;
    tip.uId = static_cast<UINT_PTR>(t.command);
    tip.lpszText = const_cast<wchar_t*>(reinterpret_cast<const wchar_t*>(hint.c_str()));
    if (tips_ != nullptr)
      SendMessageW(tips_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tip));
  }
}

void toolbar_control::read_states() {
  for (const tool& t : tools_) {
    const LRESULT now = SendMessageW(bar_, TB_GETSTATE, t.command, 0);
    if (now < 0) continue;
    BYTE state = static_cast<BYTE>(now) & ~(TBSTATE_ENABLED | TBSTATE_HIDDEN);
    if (dialog::tool_enabled(t.pair)) state |= TBSTATE_ENABLED;
    if (!dialog::tool_visible(t.pair)) state |= TBSTATE_HIDDEN;
    if (state != static_cast<BYTE>(now)) SendMessageW(bar_, TB_SETSTATE, t.command, state);
  }
}

void toolbar_control::refresh(std::uint32_t changes) {
  if ((changes & TX_CHANGED_VALUE) != 0) {
    load();  // new pictures: the buttons are made again
    return;
  }
  if ((changes & TX_CHANGED_TEXTS) != 0) {
    read_texts();
    fit_text_buttons();
  }
  if ((changes & (TX_CHANGED_STATE | TX_CHANGED_TEXTS)) != 0) {
    read_states();
    SendMessageW(bar_, TB_AUTOSIZE, 0, 0);
  }
}

size_request toolbar_control::request(const metrics& m) const {
  SIZE size{};
  SendMessageW(bar_, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
  const LRESULT button = SendMessageW(bar_, TB_GETBUTTONSIZE, 0, 0);
  const int height = std::max<int>(HIWORD(button), m.dlu_y(14));
  return {std::max<int>(size.cx, m.dlu_x(40)), height, true, false};
}

void toolbar_control::place(const RECT& area) {
  MoveWindow(strip_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
  const LRESULT button = SendMessageW(bar_, TB_GETBUTTONSIZE, 0, 0);
  const int height = std::min<int>(HIWORD(button), area.bottom - area.top);
  MoveWindow(bar_, 0, (area.bottom - area.top - height) / 2, area.right - area.left, height, TRUE);
}

void toolbar_control::show(bool shown) { ShowWindow(strip_, shown ? SW_SHOW : SW_HIDE); }

const toolbar_control::tool* toolbar_control::tool_of(int command) const noexcept {
  for (const tool& t : tools_) {
    if (t.command == command) return &t;
  }
  return nullptr;
}

void toolbar_control::invoke(int command) {
  if (const tool* t = tool_of(command)) {
    last_used_ = command;
    call(t->pair, &tx_action_tool_interface_0::invoke);
  }
}

std::vector<toolbar_control::button_values> toolbar_control::buttons() const {
  std::vector<button_values> shown;
  int group = 0;
  const LRESULT count = SendMessageW(bar_, TB_BUTTONCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    TBBUTTON button{};
    SendMessageW(bar_, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button));
    if ((button.fsStyle & BTNS_SEP) != 0) {
      ++group;
      continue;
    }
    const tool* t = tool_of(button.idCommand);
    if (t == nullptr) continue;
    button_values b;
    b.command = button.idCommand;
    b.values.id = t->id;
    const std::u16string text = window_logic::without_marker(button_text(bar_, button.idCommand));
    if (t->captioned) b.values.caption = to_utf8(text);
    std::vector<wchar_t> tip_text(1024, L'\0');
    TTTOOLINFOW tip{};
    tip.cbSize = sizeof(tip);
    tip.hwnd = bar_;
    tip.uId = static_cast<UINT_PTR>(button.idCommand);
    tip.lpszText = tip_text.data();
    if (tips_ != nullptr) {
      SendMessageW(tips_, TTM_GETTEXTW, tip_text.size(), reinterpret_cast<LPARAM>(&tip));
    }
    std::u16string hint(reinterpret_cast<const char16_t*>(tip_text.data()));
    if (const window_logic::assigned_key& key = key_for(*t); key && t->picture) {
      hint = window_logic::without_key_hint(hint, key->letter);
    }
    if (t->hinted && !hint.empty()) b.values.hint = to_utf8(hint);
    if (button.iBitmap != I_IMAGENONE) b.values.image = t->picture;
    b.values.enabled = (button.fsState & TBSTATE_ENABLED) != 0;
    b.values.visible = (button.fsState & TBSTATE_HIDDEN) == 0;
    b.values.group = group;
    shown.push_back(std::move(b));
  }
  return shown;
}

void toolbar_control::print(std::vector<std::string>& lines,
                            const dialog::vocabulary& words) const {
  lines.push_back(dialog::format_toolbar(words.tools, tools()));
}

std::vector<dialog::tool_values> toolbar_control::tools() const {
  std::vector<dialog::tool_values> values;
  for (button_values& b : buttons()) values.push_back(std::move(b.values));
  return values;
}

std::string toolbar_control::describe() const { return dialog::format_tool_listing(tools()); }

void toolbar_control::click(std::size_t position) {
  const std::vector<button_values> shown = buttons();
  if (position >= shown.size()) return;
  // The mouse goes down and up over the button: the toolbar tells its strip of the command.
  RECT r{};
  SendMessageW(bar_, TB_GETRECT, shown[position].command, reinterpret_cast<LPARAM>(&r));
  const LPARAM at = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
  SendMessageW(bar_, WM_LBUTTONDOWN, MK_LBUTTON, at);
  SendMessageW(bar_, WM_LBUTTONUP, 0, at);
  // The pointer moves on, as a person's hand does: no tool stays lit without the focus.
  if (GetFocus() != bar_) SendMessageW(bar_, WM_MOUSELEAVE, 0, 0);
}

}  // namespace tx::host::gui
