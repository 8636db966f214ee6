#include "ui/controls/Clock.h"

#include <string>

namespace zub::controls {

namespace {

// In twips; those of the digits and of the colon are counted from the panel's corner.
constexpr Box Picture1 = px(1, 1, 68, 26);
constexpr Point ImgChar[] = {px(4, 3), px(18, 3), px(38, 3), px(52, 3)};
constexpr Point ImgBlink = px(32, 7);

int digitAt(std::string_view text, std::size_t place) {
  const bool isDigit = place < text.size() && text[place] >= '0' && text[place] <= '9';
  return isDigit ? text[place] - '0' : 0;
}

}  // namespace

void Clock::SetText(std::string_view text) {
  const bool oneDigitHour = text.find(':') == 1;
  const std::string time = oneDigitHour ? "0" + std::string(text) : std::string(text);
  show(digits_, std::array<int, 4>{oneDigitHour ? Blank : digitAt(time, 0), digitAt(time, 1),
                                   digitAt(time, 3), digitAt(time, 4)});
}

Described Clock::described() const {
  std::string time;
  for (const int digit : digits_)
    if (digit != Blank) time += std::to_string(digit);
  if (time.size() > 2) time.insert(time.size() - 2, 1, ':');
  return {.role = Role::Clock, .name = time};
}

void Clock::paint(Surface& surface) const {
  surface.clear(BackColor());
  Surface panel = surface.within(pixels(Picture1));
  draw(panel, "clock-background", {});
  for (std::size_t i = 0; i < digits_.size(); ++i) {
    const std::string name = digits_[i] == Blank ? "blank" : std::to_string(digits_[i]);
    draw(panel, "digit-" + name, pixels(ImgChar[i]));
  }
  if (colonIsVisible_) draw(panel, "clock-colon", pixels(ImgBlink));
}

}  // namespace zub::controls
