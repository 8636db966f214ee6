// The kit's check box as the pictures of the rows of the system's lists.
#pragma once

#include "ui/controls/Control.h"
#include "ui/win32/CommonControls.h"
#include "ui/win32/PixelCanvas.h"

namespace zub {

class CheckImages {
 public:
  CheckImages() = default;
  CheckImages(const CheckImages&) = delete;
  CheckImages& operator=(const CheckImages&) = delete;
  ~CheckImages();

  // Empty and ticked, on white. Made at the first call, and shared by all lists.
  HIMAGELIST list(const controls::Kit& kit, PixelCanvas& canvas);

 private:
  HIMAGELIST list_ = nullptr;
};

}  // namespace zub
