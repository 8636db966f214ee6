// What the windows take of the system.
#include <cstdlib>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

// How often each window is opened: the environment may ask for more than a test run has time for.
int openings() {
  const char* asked = std::getenv("ZUB_OPENINGS");
  return asked != nullptr ? std::atoi(asked) : 2;
}

struct Opening {
  std::string_view title;
  Window button;
};

void openAndClose(const Zub& zub, const Opening& opening) {
  PostMessageA(opening.button.handle(), BM_CLICK, 0, 0);
  const Window window = zub.window(opening.title);
  if (opening.title == title::Progress) window.child("&Finish");
  PostMessageA(window.handle(), WM_CLOSE, 0, 0);
  REQUIRE(zub.hides(opening.title));
}

std::vector<Opening> allOpenings(const Zub& zub) {
  const Window main = zub.main();
  std::vector<Opening> all = {{title::Progress, main.child("&Start Cleaning")},
                              {title::About, main.child("About")},
                              {title::IECookies, main.child("Manage")}};
  icons::clickPicture(main, 5);
  main.child("Mail");
  all.push_back({title::NSCookies, main.child("Manage")});
  openTab(main, "Custom Plugins");
  all.push_back({title::Editor, main.child("Create A New Plugin")});
  wash(zub);
  finish(zub);
  all.push_back({title::Report, main.child("&View Log")});
  return all;
}

}  // namespace

TEST_CASE("windows that come and go leave no handles behind" * doctest::skip(isLaterWine())) {
  const Story story;
  const Zub zub;
  const std::vector<Opening> all = allOpenings(zub);
  for (const Opening& opening : all) openAndClose(zub, opening);
  const Zub::Handles before = zub.handles();
  // The program's own are few: letters and colours that all windows share, one set of pixels to paint on. But Wine
  // counts what it holds for itself, which is about one for each window.
  CHECK(before.graphics < 2 * before.windows);
  for (const Opening& opening : all) {
    for (int time = 0; time < openings(); ++time) openAndClose(zub, opening);
    CAPTURE(std::string(opening.title));
    const Zub::Handles now = zub.handles();
    CHECK(now.graphics == before.graphics);
    CHECK(now.windows == before.windows);
  }
  MESSAGE("each window opened " << openings() << " times: " << before.graphics << " graphic handles, "
                                << before.windows << " windows");
}
