// What the system puts around a window's inner part, and the scale at which all windows still fit on the screen.
#pragma once

#include "platform/host/win32/WindowsHeader.h"
#include "ui/layout/WindowSpec.h"

namespace zub {

struct WindowFrame {
  DWORD style;
  DWORD extendedStyle;

  // The frame that goes around an inner part of this size, in pixels.
  SIZE outerSize(int width, int height) const;
};
WindowFrame frameOf(layout::Border border);

// Pixels an inch to draw the windows for: those of the screen; fewer, in even steps, where a window would not
// fit between the screen's edges and the taskbar.
int fittingDpi();

}  // namespace zub
