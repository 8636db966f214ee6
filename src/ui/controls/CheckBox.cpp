#include "ui/controls/CheckBox.h"

namespace zub::controls {

void paintCheckBox(Surface& surface, const Kit& kit, const Box& place, CheckLook look) {
  constexpr std::string_view Pictures[] = {"check-off", "check-on", "check-off-disabled",
                                           "check-on-disabled"};
  constexpr int Rim = 1;
  const Bitmap& picture = kit.art[Pictures[static_cast<std::size_t>(look)]];
  surface.frame(picture, {0, 0, picture.width(), picture.height()}, Rim, place, kit.scale);
}

}  // namespace zub::controls
