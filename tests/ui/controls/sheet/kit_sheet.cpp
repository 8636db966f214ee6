// Paints the whole kit and all pictures of the program on one sheet: kit_sheet FILE.png
#include <cstdio>

#include "kit/Desk.h"
#include "kit/Gallery.h"
#include "kit/Png.h"

namespace {

using namespace zub;
using namespace zub::controls;

constexpr int SheetWidth = 900, Margin = 12, LabelHeight = 15;
constexpr Color Ink = rgb(110, 110, 100);

// Fills rows from the left, each as high as its highest picture.
class Sheet {
 public:
  void add(const Exhibit& exhibit) {
    const int width = std::max(exhibit.picture.width(), font_.measure(exhibit.name, {}).width);
    if (x_ + width + Margin > SheetWidth) newRow();
    places_.push_back({exhibit, {x_, y_}});
    x_ += width + Margin;
    rowHeight_ = std::max(rowHeight_, exhibit.picture.height() + LabelHeight + Margin);
  }
  void newRow() {
    y_ += rowHeight_;
    x_ = Margin;
    rowHeight_ = 0;
  }
  Canvas paint() {
    newRow();
    Canvas canvas(SheetWidth, y_);
    Surface surface = canvas.surface();
    for (const auto& [exhibit, at] : places_) {
      font_.draw(surface, at, exhibit.name, -1, {}, Ink);
      canvas.put(exhibit.picture, at.x, at.y + LabelHeight);
    }
    return canvas;
  }

 private:
  BitmapFont font_;
  std::vector<std::pair<Exhibit, Point>> places_;
  int x_ = Margin, y_ = Margin, rowHeight_ = 0;
};

Canvas onGround(const Bitmap& picture) {
  Canvas canvas(picture.width(), picture.height());
  canvas.surface().draw(picture, {});
  return canvas;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: kit_sheet FILE.png\n", stderr);
    return 2;
  }
  Sheet sheet;
  std::string family;
  for (const Exhibit& exhibit : gallery()) {
    const std::string its = exhibit.name.substr(0, exhibit.name.find('-'));
    if (std::exchange(family, its) != its) sheet.newRow();
    sheet.add(exhibit);
  }
  sheet.newRow();
  const Art art;
  for (const char* beginning :
       {"item-", "animation-", "kind-", "mark-", "warning", "icon-", "message-background"})
    for (const EmbeddedFile& file : artFiles())
      if (file.name.starts_with(beginning)) {
        const std::string name(file.name.substr(0, file.name.rfind('.')));
        sheet.add({name, onGround(art[name])});
      }
  if (writeFile(arguments[1], pngOf(sheet.paint()))) return 0;
  std::fprintf(stderr, "cannot write %s\n", arguments[1]);
  return 1;
}
