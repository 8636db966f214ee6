#include "ui/controls/Clock.h"

#include <string>

namespace zub::controls {

namespace {

constexpr Box Picture1 = pixels(Box{15, 15, 1020, 390});
constexpr int ImgCharLeft[] = {pixels(60), pixels(270), pixels(570), pixels(780)};
constexpr int ImgCharTop = pixels(45);
constexpr Point ImgBlink = {pixels(480), pixels(105)};

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

void Clock::Blink() {
  show(colonIsVisible_, !colonIsVisible_);
}

void Clock::paint(Surface& surface) const {
  surface.clear(BackColor());
  Surface panel = surface.within(Picture1);
  panel.draw(kit_.art["clock-background"], {});
  for (std::size_t i = 0; i < digits_.size(); ++i) {
    const std::string name = digits_[i] == Blank ? "blank" : std::to_string(digits_[i]);
    panel.draw(kit_.art["digit-" + name], {ImgCharLeft[i], ImgCharTop});
  }
  if (colonIsVisible_) panel.draw(kit_.art["clock-colon"], ImgBlink);
}

}  // namespace zub::controls
