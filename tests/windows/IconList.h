// The panel of ten pictures with boxes: it is one window, so the pointer goes by places. In pixels.
#pragma once

#include "windows/Desktop.h"

namespace zub::drive {

class IconList {
 public:
  // The list on the main tab, the first control of the kit in its page.
  explicit IconList(const Window& main);

  // Rows 0 to 5 lie in view; 6 to 9 do behind toTheEnd.
  void clickBox(int row) const;
  void clickPicture(int row) const;
  // Runs the panel to its lower end, with the scroll bar's arrow held down.
  void toTheEnd();

 private:
  struct Place {
    int x;
    int y;
  };
  Place boxOf(int row) const;

  Window list_;
  int scrolled_ = 0;
};

}  // namespace zub::drive
