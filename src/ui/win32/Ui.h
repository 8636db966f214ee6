// What all windows of the program share.
#pragma once

#include <map>

#include "ui/controls/Control.h"
#include "ui/win32/Fonts.h"
#include "ui/win32/GdiTextPainter.h"
#include "ui/win32/Guard.h"
#include "ui/win32/PixelCanvas.h"

namespace zub {

// Knows in which window each control of the kit lives, and so where the pointer is over it.
class ControlPlaces : public controls::PointerSource {
 public:
  struct Place {
    HWND window = nullptr;
    int dpi = 96;  // of the window's pixels; the control counts in pixels of 96 an inch where it is stretched
  };
  void put(const controls::Control& control, Place place) { places_[&control] = place; }
  controls::Point pointerOver(const controls::Control& control) override;

 private:
  std::map<const controls::Control*, Place> places_;
};

struct Ui {
  explicit Ui(HINSTANCE program) : instance(program) {}
  Ui(const Ui&) = delete;
  Ui& operator=(const Ui&) = delete;

  HICON icon() const;

  HINSTANCE instance;
  Guard guard;
  Fonts fonts;
  PixelCanvas canvas;
  GdiTextPainter text{fonts, canvas.dc()};
  controls::Art art;
  ControlPlaces places;
  controls::Kit kit{art, text, places};
};

// The number of the program's icon among its resources.
inline constexpr WORD ProgramIconId = 1;

}  // namespace zub
