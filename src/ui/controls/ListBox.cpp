#include "ui/controls/ListBox.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace zub::controls {

namespace {

// Places in twips; those of the items are counted from the panel's corner.
constexpr Box PicContainer = px(1, 1, 387, 73);
constexpr int PanelHeights = 3;  // the panel is so many times as high as the window that it shows through
constexpr Point CheckSize = px(14, 16);
struct ItemPlace {
  Point check, picture;
};
constexpr ItemPlace ItemPlaces[] = {
    {px(5, 8), px(18, 11)},     {px(61, 8), px(79, 13)},  {px(128, 8), px(138, 11)},
    {px(184, 8), px(204, 12)},  {px(250, 8), px(260, 9)}, {px(306, 8), px(321, 9)},
    {px(7, 89), px(19, 101)},   {px(63, 89), px(84, 91)}, {px(131, 89), px(139, 92)},
    {px(187, 89), px(209, 92)},
};
enum ScrollPart { DownArrow, UpArrow, Thumb };
constexpr Box ImgClick[] = {px(390, 57, 16, 17), px(391, -1, 15, 18), px(390, 17, 16, 20)};
constexpr Point ImgScrollArrows[] = {px(391, 58), px(391, 1)};
constexpr Point ImgScroll = px(391, 18);

constexpr int LowestPanelTop = -1200, PanelStep = 4, ThumbStep = 1;

constexpr std::int16_t LeftKey = 37, RightKey = 39;

// Parts, as events meet them: the items' pictures, their boxes, the scroll bar.
constexpr int FirstCheck = ListBox::Items, FirstScrollPart = 2 * ListBox::Items;

}  // namespace

ListBox::ListBox(const Kit& kit)
    : Control(kit, {407, 75}), thumbTop_(ImgScroll.y), thumbAreaTop_(ImgClick[Thumb].top) {
  for (int item = 0; item < Items; ++item) {
    SimpleCheck& check = checks_.emplace_back(kit);
    check.resize(pixels(CheckSize.x), pixels(CheckSize.y));
    check.Click = [this, item] {
      std::int16_t index = static_cast<std::int16_t>(item);
      raise(ClickCheck, index);
    };
  }
}

void ListBox::Initialise() {
  selected_ = 0;
  select(0);
}

void ListBox::Selected(std::int16_t index) {
  selected_ = std::clamp<std::int16_t>(index, 0, Items - 1);
}

std::int16_t ListBox::Check(std::int16_t index) const {
  return checks_[static_cast<std::size_t>(index)].Value() == SimpleCheck::Empty ? 0 : 1;
}

void ListBox::Check(std::int16_t index, std::int16_t value) {
  checks_[static_cast<std::size_t>(index)].Value(value == 0 ? SimpleCheck::Empty : SimpleCheck::Ticked);
  changeLook();
}

void ListBox::ItemName(std::int16_t index, std::string_view name) {
  names_[static_cast<std::size_t>(index)] = name;
}

Described ListBox::describedPart(int item) const {
  const auto index = static_cast<std::int16_t>(item);
  return {.role = Role::ListItem,
          .name = names_[static_cast<std::size_t>(item)],
          .checkable = true,
          .checked = Check(index) != 0,
          .selected = index == selected_};
}

// With its box, also where it is scrolled out of sight.
Box ListBox::partPlace(int item) const {
  const Box window = pixels(PicContainer), check = checkPlace(item), shown = picturePlace(item);
  const int left = std::min(check.left, shown.left), top = std::min(check.top, shown.top);
  return {window.left + left, window.top + panel().top + top, shown.right() - left, shown.bottom() - top};
}

void ListBox::pressPart(int item) {
  checks_[static_cast<std::size_t>(item)].press();
  changeLook();
}

Box ListBox::panel() const {
  return pixels(Box{0, panelTop_, PicContainer.width, PanelHeights * PicContainer.height});
}

const Bitmap& ListBox::picture(int item) const {
  const bool isHighlighted = highlighted_[static_cast<std::size_t>(item)];
  return kit_.art["item-" + std::to_string(item) + (isHighlighted ? "-active" : "")];
}

// An item takes the size of the picture that it shows.
Box ListBox::picturePlace(int item) const {
  const Point at = pixels(ItemPlaces[item].picture);
  const Size size = kit_.scale.ofPicture(picture(item).width(), picture(item).height());
  return {at.x, at.y, size.width, size.height};
}

Box ListBox::checkPlace(int item) const {
  const Point at = ItemPlaces[item].check;
  return pixels(Box{at.x, at.y, CheckSize.x, CheckSize.y});
}

Box ListBox::hitArea(int index) const {
  Box area = ImgClick[index];
  if (index == Thumb) area.top = thumbAreaTop_;
  return pixels(area);
}

void ListBox::paint(Surface& surface) const {
  surface.clear(BackColor());
  draw(surface, "list-frame", {});  // as large as it is: the track of the scroll bar is part of it
  draw(surface, "scroll-arrow-down", pixels(ImgScrollArrows[DownArrow]));
  draw(surface, "scroll-arrow-up", pixels(ImgScrollArrows[UpArrow]));
  draw(surface, "scroll-thumb", pixels(Point{ImgScroll.x, thumbTop_}));

  Surface inner = surface.within(pixels(PicContainer)).within(panel());
  for (int item = 0; item < Items; ++item) {
    inner.draw(picture(item), pixels(ItemPlaces[item].picture), kit_.scale);
    Surface box = inner.within(checkPlace(item));
    checks_[static_cast<std::size_t>(item)].paint(box);
  }
}

Box ListBox::focusPlace() const {
  const Box window = pixels(PicContainer), place = picturePlace(selected_);
  const int air = pixels(TwipsPerPixel);
  const Box seen = common(window, {window.left + place.left - air, window.top + panel().top + place.top - air,
                                   place.width + 2 * air, place.height + 2 * air});
  return seen.height > 0 ? seen : window;
}

int ListBox::partAt(float x, float y) const {
  for (const int index : {Thumb, DownArrow, UpArrow})
    if (hitArea(index).contains(x, y)) return FirstScrollPart + index;
  const Box container = pixels(PicContainer);
  if (!container.contains(x, y)) return Nothing;
  const float panelX = x - static_cast<float>(container.left);
  const float panelY = y - static_cast<float>(container.top + panel().top);
  // A box lies over its neighbour's picture.
  for (int item = 0; item < Items; ++item)
    if (checkPlace(item).contains(panelX, panelY)) return FirstCheck + item;
  for (int item = 0; item < Items; ++item)
    if (picturePlace(item).contains(panelX, panelY)) return item;
  return Nothing;
}

// The event with its place counted from the corner of an item's box.
Mouse ListBox::onCheck(int item, Mouse mouse) const {
  const Box container = pixels(PicContainer), place = checkPlace(item);
  mouse.X -= static_cast<float>(container.left + place.left);
  mouse.Y -= static_cast<float>(container.top + panel().top + place.top);
  return mouse;
}

void ListBox::onMouseDown(int part, Mouse& mouse) {
  if (part >= FirstScrollPart) {
    if (part == FirstScrollPart + DownArrow) scroll(1);
    if (part == FirstScrollPart + UpArrow) scroll(-1);
    thumbAreaTop_ = thumbTop_;
  } else if (part >= FirstCheck) {
    checks_[static_cast<std::size_t>(part - FirstCheck)].mouseDown(onCheck(part - FirstCheck, mouse));
  }
}

// The thumb does not follow the mouse: every move with the left button down runs it on, downward from the
// upper half and upward from the lower one.
void ListBox::onMouseMove(int part, Mouse& mouse) {
  if (part < FirstScrollPart || mouse.Button != LeftButton) return;
  if (part == FirstScrollPart + DownArrow) scroll(1);
  if (part == FirstScrollPart + UpArrow) scroll(-1);
  if (part == FirstScrollPart + Thumb) {
    if (direction_ == 0) direction_ = std::abs(panelTop_) < -LowestPanelTop ? 1 : -1;
    scroll(direction_);
  }
  thumbAreaTop_ = thumbTop_;
}

void ListBox::onMouseUp(int part, Mouse& mouse) {
  if (part >= FirstScrollPart) {
    direction_ = 0;
  } else if (part >= FirstCheck) {
    checks_[static_cast<std::size_t>(part - FirstCheck)].mouseUp(onCheck(part - FirstCheck, mouse));
    changeLook();
  }
}

void ListBox::onClick(int part) {
  if (part < FirstCheck) select(static_cast<std::int16_t>(part));
}

// Every key but the arrows goes back to the first item.
void ListBox::onKeyDown(std::int16_t code, std::int16_t) {
  int asked = 0;
  if (code == LeftKey) asked = selected_ - 1;
  if (code == RightKey) asked = selected_ + 1;
  select(static_cast<std::int16_t>(std::clamp(asked, 0, Items - 1)));
}

void ListBox::select(std::int16_t index) {
  highlighted_[static_cast<std::size_t>(selected_)] = false;
  highlighted_[static_cast<std::size_t>(index)] = true;
  selected_ = index;
  changeLook();
  raise(ClickSelect, index);
}

// One step; the thumb runs against the panel.
void ListBox::scroll(int direction) {
  if (direction > 0 ? panelTop_ <= LowestPanelTop : panelTop_ >= 0) return;
  panelTop_ -= direction * PanelStep;
  thumbTop_ += direction * ThumbStep;
  changeLook();
}

}  // namespace zub::controls
