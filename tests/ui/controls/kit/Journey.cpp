#include "kit/Journey.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

#include "kit/Gallery.h"

namespace zub::controls {

namespace {

// Runs of columns and of rows whose places raise the same. Of a high control each fourth row is tried.
std::string mapOf(const Make& make) {
  Desk desk;
  std::string log, text, rowBefore;
  const Actor first = make(desk, log);
  const int width = first.control->width(), height = first.control->height();
  const auto raisedAt = [&](int x, int y) {
    const Actor actor = make(desk, log);
    log.clear();
    const unsigned revision = actor.control->revision();
    click(static_cast<float>(x), static_cast<float>(y))(desk, *actor.control);
    std::erase_if(log, [isPlace = false](char c) mutable {
      isPlace = c == '(' || (isPlace && c != ' ');
      return isPlace;
    });
    return !log.empty() ? std::exchange(log, {}) : actor.control->revision() != revision ? "moves " : "";
  };
  for (int y = -1; y <= height; y += height > 30 ? 4 : 1) {
    std::string row, before;
    for (int x = -1; x <= width + 1; ++x) {
      const std::string raised = x <= width ? raisedAt(x, y) : "";
      if (raised == before) continue;
      if (!before.empty()) row += std::to_string(x - 1) + ' ' + before;
      if (!raised.empty()) row += "| " + std::to_string(x) + '-';
      before = raised;
    }
    if (row != rowBefore) text += "  from row " + std::to_string(y) + ": " + row + '\n';
    rowBefore = row;
  }
  return text;
}

std::string lookOf(const Actor& actor) {
  if (actor.look) return actor.look();
  static const std::vector<Exhibit> all = gallery();
  const auto found = std::ranges::find(all, Canvas::of(*actor.control), &Exhibit::picture);
  return found != all.end() ? found->name : "another look";
}

std::vector<Step> gestures(const Actor& actor) {
  const auto x = static_cast<float>(actor.on.x), y = static_cast<float>(actor.on.y);
  const auto otherX = static_cast<float>(actor.other.x), otherY = static_cast<float>(actor.other.y);
  const int width = actor.control->width(), height = actor.control->height();
  const auto right = static_cast<float>(width), foot = static_cast<float>(height);
  Control& control = *actor.control;
  const auto enable = [&control](bool enabled) { return call([=, &control] { control.Enabled(enabled); }); };
  const Act doubled = call([=, &control] { control.mouseDoubleClick({LeftButton, 0, x, y}); });
  const Act pressed = call([&control] { control.press(); });
  const Act typed = call([&control] { control.keyPress(65); });
  const Act released = call([&control] { control.keyUp(65, 0); });
  return {{"over it", move(0, x, y)},
          {"over its far corner", tick(width, height)},
          {"over the other place", move(0, otherX, otherY)},
          {"right of it", tick(width + 1, 0)},
          {"still there", tick(width + 1, 0)},
          {"moved to the far corner", move(0, right, foot)},
          {"moved beyond it", move(0, right + 9, foot)},
          {"above it", tick(0, -1)},
          {"down", down(LeftButton, x, y)},
          {"dragged", move(LeftButton, x + 1, y)},
          {"dragged to the other place", move(LeftButton, otherX, otherY)},
          {"dragged out", move(LeftButton, right + 9, y)},
          {"out", tick(width + 9, 0)},
          {"dragged back", move(LeftButton, x, y)},
          {"up where it began", up(LeftButton, x, y)},
          {"down", down(LeftButton, x, y)},
          {"up outside", up(LeftButton, right + 9, y)},
          {"down", down(LeftButton, x, y)},
          {"up at the other place", up(LeftButton, otherX, otherY)},
          {"click at the other place", click(otherX, otherY)},
          {"down at the other place", down(LeftButton, otherX, otherY)},
          {"up at the first place", up(LeftButton, x, y)},
          {"right down", down(RightButton, x, y)},
          {"right held", move(RightButton, x, y)},
          {"both held", move(LeftButton | RightButton, x, y)},
          {"right up", up(RightButton, x, y)},
          {"double-click", doubled},
          {"up behind a double-click", up(LeftButton, x, y)},
          {"over it", move(0, x, y)},
          {"in sight again", call([&control] { control.shown(); })},
          {"key down", key(65)},
          {"typed", typed},
          {"key up", released},
          {"pressed by its access key", pressed},
          {"down", down(LeftButton, x, y)},
          {"disabled", enable(false)},
          {"up while disabled", up(LeftButton, x, y)},
          {"over it while disabled", move(0, x, y)},
          {"click while disabled", click(x, y)},
          {"double-click while disabled", doubled},
          {"key down while disabled", key(65)},
          {"typed while disabled", typed},
          {"key up while disabled", released},
          {"pressed by its access key while disabled", pressed},
          {"enabled", enable(true)},
          {"up without a press", up(LeftButton, x, y)}};
}

}  // namespace

std::string journeyOf(const Make& make) {
  std::ostringstream text;
  Desk desk;
  std::string log;
  const Actor actor = make(desk, log);
  Control& control = *actor.control;
  text << "  " << control.width() << 'x' << control.height() << ", every " << control.timer().Interval
       << " ms, at first " << lookOf(actor) << '\n'
       << mapOf(make);
  const auto described = [&text](const Described& what, const Box& place) {
    text << "  role " << static_cast<int>(what.role) << " \"" << what.name << '"'
         << (what.checkable ? ", can be ticked" : "") << (what.selected ? ", selected" : "") << " at "
         << place.left << ',' << place.top << ' ' << place.width << 'x' << place.height << '\n';
  };
  described(control.described(), control.focusPlace());
  for (int part = 0; part < control.parts(); ++part)
    described(control.describedPart(part), control.partPlace(part));
  std::vector<Step> all = gestures(actor);
  std::ranges::move(actor.wishes(), std::back_inserter(all));
  std::string lookBefore;
  for (const Step& step : all) {
    log.clear();
    const Canvas before = Canvas::of(control);
    const unsigned revision = control.revision();
    step.act(desk, control);
    CAPTURE(step.what);
    CHECK((control.revision() != revision || Canvas::of(control) == before));
    const std::string look = lookOf(actor) + (control.timer().Enabled ? ", ticking" : "");
    if (!log.empty() || look != lookBefore) text << "  " << step.what << ": " << log << "> " << look << '\n';
    lookBefore = look;
  }
  return text.str();
}

}  // namespace zub::controls
