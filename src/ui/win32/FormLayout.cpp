// The making of a window from its layout.
#include "ui/win32/CommonControls.h"
#include "ui/win32/FormPage.h"
#include "ui/win32/FormWindow.h"
#include "ui/win32/WindowFrame.h"

namespace zub {
namespace {

constexpr const char* FormClass = "ZubraneForm";

}  // namespace

FormWindow::FormWindow(Ui& ui, layout::WindowSpec window, HWND owner)
    : OwnWindow(ui, plainColor(window.face.background)), window_(std::move(window)), owner_(owner) {
  const layout::Face& face = window_.face;
  const WindowFrame frame = frameOf(face.border);
  const SIZE size = frame.outerSize(ui.fonts.pixels(face.width), ui.fonts.pixels(face.height));
  create({FormClass,
          std::string(face.title).c_str(),
          frame.style,
          frame.extendedStyle,
          {0, 0, size.cx, size.cy},
          owner});
  if (face.border == layout::Border::Dialog) showIcon();
  makeToolTips();
  makeControls(window_.controls, hwnd(), face.background);
  if (!pages_.empty()) showPage(0);
  // Newer systems hide where the keyboard is until a key is pressed.
  SendMessageA(hwnd(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

FormWindow::~FormWindow() = default;

// A dialog shows an icon of its own only, not that of its class.
void FormWindow::showIcon() {
  const HICON icon = ui_.icon(GetSystemMetrics(SM_CXSMICON));
  SendMessageA(hwnd(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
}

FormWindow* FormWindow::of(HWND window) {
  char className[32] = "";
  if (window == nullptr || GetClassNameA(window, className, sizeof className) == 0) return nullptr;
  if (std::string_view(className) != FormClass) return nullptr;
  return reinterpret_cast<FormWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

void FormWindow::makeToolTips() {
  toolTips_ =
      CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT,
                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, hwnd(), nullptr, ui_.instance, nullptr);
}

void FormWindow::makeControls(const layout::Controls& controls, HWND holder, Color ground) {
  layout::Kind before = layout::Kind::Page;
  for (const layout::ControlSpec& spec : controls) {
    // One group each for the arrow keys, but for option buttons that follow each other.
    const bool continues = spec.kind == layout::Kind::Radio && before == layout::Kind::Radio;
    before = spec.kind;
    if (spec.kind == layout::Kind::Page) {
      makeControls(spec.inside, makePage(spec), colors::Page);
    } else {
      const COLORREF under = window_.face.backdrop.empty() ? plainColor(ground) : backdropUnder(spec);
      makeControls(spec.inside, makeView(spec, holder, under, continues), ground);
    }
  }
}

HWND FormWindow::makePage(const layout::ControlSpec& spec) {
  pages_.push_back(std::make_unique<FormPage>(ui_, hwnd(), ui_.fonts.pixels(spec.place)));
  return pages_.back()->hwnd();
}

HWND FormWindow::makeView(const layout::ControlSpec& spec, HWND holder, COLORREF ground, bool continues) {
  const ViewSite site{
      ui_, window_, spec, holder, ui_.fonts.pixels(spec.place), ground, [this](int page) { showPage(page); }};
  std::unique_ptr<View> view = makeKitView(site);
  if (!view) view = makeNativeView(site);
  const HWND control = view->hwnd();
  if (spec.kind == layout::Kind::Tabs) tabs_ = control;
  if (TextBox* box = site.bound<TextBox*>()) boxes_[box] = view.get();
  if (!continues) SetWindowLongA(control, GWL_STYLE, GetWindowLongA(control, GWL_STYLE) | LONG{WS_GROUP});
  if (!spec.toolTip.empty()) addToolTip(control, spec.toolTip);
  // The text box inside a combo box gets the pointer's messages itself.
  if (spec.kind == layout::Kind::EditCombo) addToolTip(GetWindow(control, GW_CHILD), spec.toolTip);
  views_.push_back(std::move(view));
  return control;
}

// The colour that it has at the control's corner: what is transparent lies on plain parts of it.
COLORREF FormWindow::backdropUnder(const layout::ControlSpec& spec) const {
  const std::uint32_t pixel = ui_.art[window_.face.backdrop].pixel(spec.place.left / layout::TwipsPerPixel,
                                                                   spec.place.top / layout::TwipsPerPixel);
  return rgb(pixel >> 16U & 0xFFU, pixel >> 8U & 0xFFU, pixel & 0xFFU);
}

void FormWindow::paintBackdrop(HDC dc) const {
  const controls::Bitmap& picture = ui_.art[window_.face.backdrop];
  RECT all;
  GetClientRect(hwnd(), &all);
  const int width = static_cast<int>(all.right), height = static_cast<int>(all.bottom);
  ui_.canvas.surface(width, height)
      .copy(picture, {0, 0, picture.width(), picture.height()}, {0, 0, width, height});
  BitBlt(dc, 0, 0, width, height, ui_.canvas.dc(), 0, 0, SRCCOPY);
}

void FormWindow::addToolTip(HWND control, std::string_view text) {
  std::string shown(text);
  TOOLINFOA tool{};
  tool.cbSize = TTTOOLINFOA_V2_SIZE;  // what every version of the tool tips knows
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = hwnd();
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = shown.data();
  SendMessageA(toolTips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

// In the middle of the screen, or of the owner; but not under the taskbar where the screen is hardly larger.
void FormWindow::place() {
  RECT middle{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  if (owner_ != nullptr && IsWindowVisible(owner_) != 0) GetWindowRect(owner_, &middle);
  RECT room = middle, size;
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &room, 0);
  GetWindowRect(hwnd(), &size);
  const auto put = [](LONG sum, LONG length, LONG from, LONG to) {
    return static_cast<int>(std::max(from, std::min((sum - length) / 2, to - length)));
  };
  SetWindowPos(hwnd(), nullptr,
               put(middle.left + middle.right, size.right - size.left, room.left, room.right),
               put(middle.top + middle.bottom, size.bottom - size.top, room.top, room.bottom), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::showPage(int page) {
  for (int one = 0; one < static_cast<int>(pages_.size()); ++one)
    ShowWindow(pages_[static_cast<std::size_t>(one)]->hwnd(), one == page ? SW_SHOW : SW_HIDE);
}

}  // namespace zub
