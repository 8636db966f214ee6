#include "ui/win32/GdiTextPainter.h"

namespace zub {
namespace {

SIZE extent(HDC dc, std::string_view text) {
  SIZE size{};
  GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size()), &size);
  return size;
}

}  // namespace

controls::Size GdiTextPainter::measure(std::string_view text, const controls::Font& font) {
  const HGDIOBJ before = SelectObject(canvas_, native(font));
  TEXTMETRICA metrics;
  GetTextMetricsA(canvas_, &metrics);
  const int width = static_cast<int>(extent(canvas_, text).cx);
  SelectObject(canvas_, before);
  return {width, static_cast<int>(metrics.tmHeight)};
}

void GdiTextPainter::draw(controls::Surface& surface, controls::Point at, std::string_view text,
                          int underlined, const controls::Font& font, Color color) {
  const int saved = SaveDC(canvas_);
  const controls::Box& clip = surface.clip();
  IntersectClipRect(canvas_, clip.left, clip.top, clip.right(), clip.bottom());
  SelectObject(canvas_, native(font));
  SetBkMode(canvas_, TRANSPARENT);
  SetTextColor(canvas_, plainColor(color));
  const int left = surface.origin().x + at.x;
  const int top = surface.origin().y + at.y;
  TextOutA(canvas_, left, top, text.data(), static_cast<int>(text.size()));
  if (underlined >= 0) {
    TEXTMETRICA metrics;
    GetTextMetricsA(canvas_, &metrics);
    const auto place = static_cast<std::size_t>(underlined);
    const int from = left + static_cast<int>(extent(canvas_, text.substr(0, place)).cx);
    const int to = left + static_cast<int>(extent(canvas_, text.substr(0, place + 1)).cx);
    const int line = top + static_cast<int>(metrics.tmAscent) + 1;
    const RECT under{from, line, to, line + 1};
    FillRect(canvas_, &under, fonts_.brush(plainColor(color)));
  }
  GdiFlush();
  RestoreDC(canvas_, saved);
}

}  // namespace zub
