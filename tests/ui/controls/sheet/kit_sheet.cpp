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
  void add(const std::string& name, const Canvas& picture) {
    const int width = std::max(picture.width(), font_.measure(name, {}).width);
    if (x_ + width + Margin > SheetWidth) newRow();
    places_.push_back({name, picture, x_, y_});
    x_ += width + Margin;
    rowHeight_ = std::max(rowHeight_, picture.height() + LabelHeight);
  }
  void newRow() {
    y_ += rowHeight_ == 0 ? 0 : rowHeight_ + Margin;
    x_ = Margin;
    rowHeight_ = 0;
  }
  Canvas paint() {
    newRow();
    Canvas canvas(SheetWidth, y_);
    Surface surface = canvas.surface();
    for (const Place& place : places_) {
      font_.draw(surface, {place.x, place.y}, place.name, -1, {}, Ink);
      canvas.put(place.picture, place.x, place.y + LabelHeight);
    }
    return canvas;
  }

 private:
  struct Place {
    std::string name;
    Canvas picture;
    int x, y;
  };

  BitmapFont font_;
  std::vector<Place> places_;
  int x_ = Margin, y_ = Margin, rowHeight_ = 0;
};

Canvas onGround(const Bitmap& picture) {
  Canvas canvas(picture.width(), picture.height());
  Surface surface = canvas.surface();
  surface.draw(picture, {});
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
    if (its != family) sheet.newRow();
    family = its;
    sheet.add(exhibit.name, exhibit.picture);
  }
  sheet.newRow();
  const Art art;
  for (const char* beginning : {"item-", "animation-", "kind-", "mark-", "warning", "icon-"})
    for (const EmbeddedFile& file : artFiles())
      if (file.name.starts_with(beginning)) {
        const std::string name(file.name.substr(0, file.name.rfind('.')));
        sheet.add(name, onGround(art[name]));
      }
  if (!writeFile(arguments[1], pngOf(sheet.paint()))) {
    std::fprintf(stderr, "cannot write %s\n", arguments[1]);
    return 1;
  }
  return 0;
}
