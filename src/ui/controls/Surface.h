// What the kit paints on: 32-bit pixels in memory, whoever owns it. The same calls give the same pixels on
// every system.
#pragma once

#include <cstdint>

#include "state/Controls.h"
#include "ui/controls/Bitmap.h"
#include "ui/controls/Geometry.h"

namespace zub::controls {

class Surface {
 public:
  // width * height pixels, 0x00RRGGBB, the top row first. The memory must outlive the surface.
  Surface(std::uint32_t* memory, int width, int height);

  int width() const { return size_.width; }
  int height() const { return size_.height; }

  // The part of this surface in the box, counted from the box's corner. Painting on it stays inside both.
  Surface within(const Box& box) const;
  // For painters of their own: where the point 0, 0 lies in the memory, and the part of the memory that may
  // be painted.
  Point origin() const { return origin_; }
  const Box& clip() const { return clip_; }

  // Colours are plain ones: a system colour is the business of whoever knows the system.
  void fill(const Box& box, Color color);
  void clear(Color color) { fill({0, 0, width(), height()}, color); }

  // Stretches a part of the picture over the box `to`: each pixel takes the mean of what lies under it, mixed in
  // by its opacity, so that whole multiples stay sharp and all others are smooth. What lies outside the picture,
  // or outside the surface, is left as it is. An empty or negative box paints nothing.
  void copy(const Bitmap& picture, const Box& from, const Box& to);
  // The whole picture in its size on this screen.
  void draw(const Bitmap& picture, Point at, Scale scale = {});
  // A part of the picture as a frame around its middle: the four corners of `edge` pixels a side and the edges
  // between them grow in whole lines, the middle takes the room that is left.
  void frame(const Bitmap& picture, const Box& from, int edge, const Box& to, Scale scale);

 private:
  std::uint32_t* row(int y);

  std::uint32_t* memory_;
  int stride_;
  Size size_;
  Point origin_;
  Box clip_;
};

}  // namespace zub::controls
