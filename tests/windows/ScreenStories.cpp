// Screens of other resolutions.
#include <windows.h>
// Behind it.
#include <shlwapi.h>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

constexpr int OuterDpi = 96;  // of the screen that the stories run on

// What a program finds that is started while the object lives.
class PixelsAnInch {
 public:
  explicit PixelsAnInch(DWORD dpi) { put(dpi); }
  PixelsAnInch(const PixelsAnInch&) = delete;
  PixelsAnInch& operator=(const PixelsAnInch&) = delete;
  ~PixelsAnInch() { put(OuterDpi); }

 private:
  static void put(DWORD dpi) {
    SHSetValueA(HKEY_CURRENT_USER, "Control Panel\\Desktop", "LogPixels", REG_DWORD, &dpi, sizeof dpi);
  }
};

bool lies(const RECT& inner, const RECT& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

}  // namespace

TEST_CASE("where the screen is lower than the windows would be, a smaller scale shows them whole" *
          doctest::skip(isLaterWine())) {
  const Story story;
  const PixelsAnInch pixels(192);
  const Zub zub;
  const Window main = zub.main();
  RECT room{};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &room, 0);
  CHECK(lies(main.place(), room));
  CHECK(lies(main.child("About").place(), main.place()));
  // As large as there is room for, all the same.
  constexpr LONG Width = 455;  // at 96 pixels an inch
  CHECK(main.place().right - main.place().left > Width * 5 / 4);
}
