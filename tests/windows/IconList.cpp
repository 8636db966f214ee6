#include "windows/IconList.h"

namespace zub::drive {
namespace {

// The middle of the boxes; the pictures begin right of them.
constexpr int BoxX[] = {13, 69, 136, 192, 258, 314, 15, 71, 139, 195};
constexpr int UpperRow = 17, LowerRow = 98, RowsAbove = 6;
constexpr int ToThePicture = 28, IntoThePicture = 12;

}  // namespace

IconList::IconList(const Window& main) : list_(main.child("ZubraneControl", 0)) {}

IconList::Place IconList::boxOf(int row) const {
  return {BoxX[row], (row < RowsAbove ? UpperRow : LowerRow) - scrolled_};
}

void IconList::clickBox(int row) const {
  const Place box = boxOf(row);
  list_.clickAt(scaled(box.x), scaled(box.y));
}

void IconList::clickPicture(int row) const {
  const Place box = boxOf(row);
  list_.clickAt(scaled(box.x + ToThePicture), scaled(box.y + IntoThePicture));
}

// Each movement over the arrow is one step; steps that find the end do nothing.
void IconList::toTheEnd() {
  constexpr int Steps = 310, AllTheWay = 80, ArrowX = 398, ArrowY = 66;
  const RECT all = list_.place();
  const int x = static_cast<int>(all.left) + ArrowX, y = static_cast<int>(all.top) + ArrowY;
  movePointer(x, y);
  pressButton();
  for (int step = 0; step < Steps; ++step) movePointer(x + step % 2, y);
  releaseButton();
  list_.settle();
  scrolled_ = AllTheWay;
}

}  // namespace zub::drive
