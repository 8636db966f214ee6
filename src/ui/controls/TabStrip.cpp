#include "ui/controls/TabStrip.h"

#include <utility>

namespace zub::controls {

namespace {

constexpr Box XPTabAreas[] = {titlePx(-1, 0, 61, 25), titlePx(60, 0, 61, 25), titlePx(120, 1, 70, 25),
                              titlePx(190, 1, 86, 25)};
constexpr Box EditorAreas[] = {titlePx(3, 3, 58, 23), titlePx(60, 3, 85, 23), titlePx(140, 0, 59, 23)};

}  // namespace

TabStrip::TabStrip(const Kit& kit, Size size, std::span<const Box> areas, std::string art)
    : Control(kit, size), art_(std::move(art)) {
  for (const Box& area : areas) areas_.push_back(kit.scale.pixels(area, TitleTwipsPerPixel));
}

void TabStrip::ShowTab(std::int16_t Index) {
  if (Index < 0 || static_cast<std::size_t>(Index) >= areas_.size()) return;
  show(active_, int{Index});
  raiseOwnEvent(Index);
  raise(Click, Index);
}

void TabStrip::paint(Surface& surface) const {
  surface.clear(BackColor());
  draw(surface, art_ + std::to_string(active_), {});
}

// Where two areas overlap, the later one lies above.
int TabStrip::partAt(float x, float y) const {
  for (std::size_t i = areas_.size(); i-- > 0;)
    if (areas_[i].contains(x, y)) return static_cast<int>(i);
  return Nothing;
}

XPTab::XPTab(const Kit& kit) : TabStrip(kit, Size{281, 25}, XPTabAreas, "tab-top-") {}

void XPTab::raiseOwnEvent(int tab) const {
  const Handler* const events[] = {&Main, &Plugins, &Options, &ZUBScheduler};
  raise(*events[tab]);
}

TabPluginsEditor::TabPluginsEditor(const Kit& kit)
    : TabStrip(kit, Size{201, 25}, EditorAreas, "tab-editor-") {}

void TabPluginsEditor::raiseOwnEvent(int tab) const {
  const Handler* const events[] = {&Registry, &Files, &Comments};
  raise(*events[tab]);
}

}  // namespace zub::controls
