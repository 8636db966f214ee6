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

// The program draws for 96 pixels an inch.
inline constexpr int TwipsPerPixel = 15;
// Tabs and title buttons are told at 120 pixels an inch: there the areas for the mouse cover the pictures.
inline constexpr int TitleTwipsPerPixel = 12;

// The nearest pixel, halves upward.
constexpr int pixels(int twips, int twipsPerPixel = TwipsPerPixel) {
  const int doubled = 2 * twips + twipsPerPixel;
  const int unit = 2 * twipsPerPixel;
  return doubled >= 0 ? doubled / unit : -((unit - 1 - doubled) / unit);
}

constexpr Box pixels(const Box& twips, int twipsPerPixel = TwipsPerPixel) {
  const int left = pixels(twips.left, twipsPerPixel);
  const int top = pixels(twips.top, twipsPerPixel);
  return {left, top, pixels(twips.right(), twipsPerPixel) - left,
          pixels(twips.bottom(), twipsPerPixel) - top};
}

}  // namespace zub::controls
