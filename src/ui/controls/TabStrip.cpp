#include "ui/controls/TabStrip.h"

#include <utility>

namespace zub::controls {

namespace {

constexpr Box XPTabAreas[] = {
    {-12, 0, 732, 300}, {720, 0, 732, 300}, {1440, 12, 840, 300}, {2280, 12, 1032, 300}};
constexpr Box EditorAreas[] = {{36, 36, 696, 276}, {720, 36, 1020, 276}, {1680, 0, 708, 276}};

constexpr Size sizeOf(int width, int height) {
  return {width / TitleTwipsPerPixel, height / TitleTwipsPerPixel};
}

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

XPTab::XPTab(const Kit& kit) : TabStrip(kit, sizeOf(3372, 300), XPTabAreas, "tab-top-") {}

void XPTab::raiseOwnEvent(int tab) const {
  const Handler* const events[] = {&Main, &Plugins, &Options, &ZUBScheduler};
  raise(*events[tab]);
}

TabPluginsEditor::TabPluginsEditor(const Kit& kit)
    : TabStrip(kit, sizeOf(2412, 300), EditorAreas, "tab-editor-") {}

void TabPluginsEditor::raiseOwnEvent(int tab) const {
  const Handler* const events[] = {&Registry, &Files, &Comments};
  raise(*events[tab]);
}

}  // namespace zub::controls
