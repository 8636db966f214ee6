// Places and sizes. Everything that paints or gets events counts in pixels; a layout may be told in twips.
#pragma once

#include <algorithm>

namespace zub::controls {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Box&) const = default;

  constexpr int right() const { return left + width; }
  constexpr int bottom() const { return top + height; }
  constexpr bool contains(float x, float y) const {
    return x >= static_cast<float>(left) && x < static_cast<float>(right()) && y >= static_cast<float>(top) &&
           y < static_cast<float>(bottom());
  }
};

constexpr Box common(const Box& a, const Box& b) {
  const int left = std::max(a.left, b.left);
  const int top = std::max(a.top, b.top);
  return {left, top, std::max(0, std::min(a.right(), b.right()) - left),
          std::max(0, std::min(a.bottom(), b.bottom()) - top)};
}

// What the kit is told in: most of it for 96 pixels an inch, tabs and title buttons for 120, where the areas for the
// mouse cover the pictures.
inline constexpr int TwipsPerPixel = 15;
inline constexpr int TitleTwipsPerPixel = 12;

// Places that are told in pixels, as the twips that stand for them.
constexpr Point px(int x, int y) {
  return {x * TwipsPerPixel, y * TwipsPerPixel};
}
constexpr Box px(int left, int top, int width, int height) {
  return {left * TwipsPerPixel, top * TwipsPerPixel, width * TwipsPerPixel, height * TwipsPerPixel};
}
constexpr Box titlePx(int left, int top, int width, int height) {
  return {left * TitleTwipsPerPixel, top * TitleTwipsPerPixel, width * TitleTwipsPerPixel,
          height * TitleTwipsPerPixel};
}

// From what the kit is told in to the pixels of the screen that it is painted on.
struct Scale {
  static constexpr int DesignDpi = 96;
  int dpi = DesignDpi;  // pixels an inch

  // The nearest pixel, halves upward.
  constexpr int pixels(int twips, int twipsPerPixel = TwipsPerPixel) const {
    const int doubled = 2 * twips * dpi + twipsPerPixel * DesignDpi;
    const int unit = 2 * twipsPerPixel * DesignDpi;
    return doubled >= 0 ? doubled / unit : -((unit - 1 - doubled) / unit);
  }
  constexpr Point pixels(Point twips, int twipsPerPixel = TwipsPerPixel) const {
    return {pixels(twips.x, twipsPerPixel), pixels(twips.y, twipsPerPixel)};
  }
  // Boxes that touch in twips touch in pixels.
  constexpr Box pixels(const Box& twips, int twipsPerPixel = TwipsPerPixel) const {
    const int left = pixels(twips.left, twipsPerPixel);
    const int top = pixels(twips.top, twipsPerPixel);
    return {left, top, pixels(twips.right(), twipsPerPixel) - left,
            pixels(twips.bottom(), twipsPerPixel) - top};
  }
  // The size of a picture of so many pixels.
  constexpr Size ofPicture(int width, int height) const { return {pixels(width, 1), pixels(height, 1)}; }
  // How wide a line of one pixel is: lines grow in whole steps, so that all are alike.
  constexpr int line() const { return std::max(1, dpi / DesignDpi); }
};

}  // namespace zub::controls
