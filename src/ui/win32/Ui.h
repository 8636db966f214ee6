// What all windows of the program share.
#pragma once

#include <map>

#include "ui/controls/Control.h"
#include "ui/win32/CheckImages.h"
#include "ui/win32/Fonts.h"
#include "ui/win32/GdiTextPainter.h"
#include "ui/win32/Guard.h"
#include "ui/win32/PixelCanvas.h"
#include "ui/win32/WindowFrame.h"

namespace zub {

// Knows in which window each control of the kit lives, and so where the pointer is over it.
class ControlPlaces : public controls::PointerSource {
 public:
  void put(const controls::Control& control, HWND window) { windows_[&control] = window; }
  controls::Point pointerOver(const controls::Control& control) override;

 private:
  std::map<const controls::Control*, HWND> windows_;
};

struct Ui {
  explicit Ui(HINSTANCE program) : instance(program) {}
  Ui(const Ui&) = delete;
  Ui& operator=(const Ui&) = delete;

  HICON icon() const;
  HICON icon(int side) const;  // in pixels

  HINSTANCE instance;
  Guard guard;
  Fonts fonts{fittingDpi()};
  PixelCanvas canvas;
  GdiTextPainter text{fonts, canvas.dc()};
  controls::Art art;
  ControlPlaces places;
  controls::Kit kit{art, text, places, fonts.scale()};
  CheckImages checks;
};

// The number of the program's icon among its resources.
inline constexpr WORD ProgramIconId = 1;

}  // namespace zub
