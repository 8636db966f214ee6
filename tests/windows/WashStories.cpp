// Washes from the main window: what they remove, show and report.
#include "windows/Story.h"
#include "windows/Told.h"

using namespace zub::drive;

namespace {

const std::string Explorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

}  // namespace

TEST_CASE("a preview removes nothing, a wash what is ticked, and nothing beside it") {
  const Story story;
  const pc::fs::path trace = pc::temp() / "deep" / "deeper" / "trace.tmp", link = pc::recent() / "letter.lnk";
  const pc::fs::path fileDecoy = pc::temp().parent_path() / "Temporary" / "kept.tmp";
  for (const pc::fs::path& file : {trace, link, fileDecoy}) pc::put(file, "trace");
  for (const char* key : {"RunMRU", "RunMRU2", "Doc Find Spec MRU"})
    pc::putValue(Explorer + key, "a", "calc\\1");
  const Zub zub;
  const Window main = zub.main();
  icons::toTheEnd(main);
  for (const int row : {6, 7, 8}) icons::clickBox(main, row, icons::Scrolled::ToTheEnd);
  main.child("&Preview").click();
  const Window report = zub.window(title::PreviewReport);
  CHECK(report.child("EDIT", 0).comesToSay(
      "Would go: 2 files of 10 bytes, 2 folders, 1 registry key, 1 value\r\n"));
  CHECK(report.comesToFront());
  key(VK_ESCAPE);
  CHECK(zub.hides(title::PreviewReport));
  CHECK(soon([&] { return main.isEnabled(); }));
  CHECK((pc::exists(trace) && pc::exists(link) && pc::hasKey(Explorer + "RunMRU")));
  CHECK(main.child("STATIC", 2).text() == "");

  const Window progress = wash(zub);
  CHECK_FALSE(zub.shows(title::Main));
  CHECK(progress.hasChild("Total amount of space restored: 10 Bytes"));
  finish(zub);
  CHECK(main.child("STATIC", 2).comesToSay("Last removal on "));
  CHECK(pc::exists(pc::temp()));
  CHECK(pc::filesIn(pc::temp()) + pc::filesIn(pc::recent()) == 0);
  CHECK_FALSE(pc::hasKey(Explorer + "RunMRU"));
  CHECK(pc::bytesOf(fileDecoy) == "trace");
  for (const char* kept : {"RunMRU2", "Doc Find Spec MRU"}) {  // the item of the second is not ticked
    CHECK(pc::value(Explorer + kept, "a") == "calc\\1");
    pc::removeKey(Explorer + kept);
  }
}

TEST_CASE("a preview takes the main window's input, and Esc stops it") {
  const Story story;
  const std::size_t files = pc::seedLongWork();
  const Zub zub;
  const Window main = zub.main();
  chord({VK_MENU, 'P'});
  const Window looking = zub.window(title::Preview);
  CHECK(soon([&] { return !main.isEnabled(); }));
  REQUIRE(looking.comesToFront());
  key(VK_ESCAPE);
  CHECK(zub.hides(title::Preview));
  CHECK(soon([&] { return main.isEnabled(); }));
  CHECK(main.comesToFront());
  CHECK_FALSE(zub.shows(title::PreviewReport));
  CHECK(pc::filesIn(pc::temp()) == files);
}

TEST_CASE("Cancel closes the display, and the removal goes on") {
  const Story story;
  const std::size_t files = pc::seedLongWork();
  const Zub zub;
  const Window main = zub.main();
  main.child("&Start Cleaning").click();
  const Window progress = zub.window(title::Progress);
  const Window task = progress.child("Temp Directory");
  CHECK(soon([&] { return pc::filesIn(pc::temp()) < files; }));
  const int bold = inkOf(task);
  progress.child("&Cancel").click();
  CHECK(zub.hides(title::Progress));
  CHECK(main.isVisible());
  const std::size_t left = pc::filesIn(pc::temp());
  CHECK(left > 0);
  CHECK(left <= files);
  CHECK(soon([] { return pc::filesIn(pc::temp()) == 0; }, 2 * Patience));
  CHECK_FALSE(zub.shows(title::Progress));
  CHECK(main.child("STATIC", 2).comesToSay("Last removal on "));
  wash(zub);
  CHECK((isLaterWine() || soon([&] { return inkOf(task) < bold; })));
}

TEST_CASE("the report tells of the last wash, and a minimised one comes up again as it was") {
  const Story story;
  const Trace trace;
  const Zub zub;
  const Window main = zub.main();
  const Window progress = wash(zub);
  progress.child("&View Log").click();
  const Window report = zub.window(title::Report);
  for (const char* part : {"Log file generated at ", "\tDeleting file trace.tmp\r\n"})
    CHECK(report.child("EDIT", 0).comesToSay(part));
  report.child("&Cancel").click();
  CHECK(zub.hides(title::Report));
  REQUIRE(progress.comesToFront());
  key(VK_ESCAPE);
  CHECK(zub.hides(title::Progress));
  CHECK(soon([&] { return main.isVisible() && main.isEnabled(); }));

  wash(zub);
  finish(zub);
  main.child("&View Log").click();
  const Window text = zub.window(title::Report).child("EDIT", 0);
  CHECK(text.comesToSay("Log file generated at "));
  CHECK(soon([&] { return text.text().find("trace.tmp") == std::string::npos; }));
  report.send(WM_SYSCOMMAND, SC_MINIMIZE);
  REQUIRE(IsIconic(report.handle()) != 0);
  report.send(WM_CLOSE);
  CHECK(zub.hides(title::Report));
  main.child("&View Log").click();
  CHECK(soon([&] { return report.isVisible() && IsIconic(report.handle()) == 0; }));
  key(VK_ESCAPE);
  CHECK(zub.hides(title::Report));
}

TEST_CASE("a long report is shown whole, or where Windows has no room for it, as much of its end as it has") {
  const Story story;
  pc::option("chkTempFolder");
  constexpr int Files = 400;
  const std::string name = std::string(180, 'n') + ".tmp";
  for (int file = 0; file < Files; ++file) pc::put(pc::temp() / (std::to_string(file) + name), "trace");
  const Zub zub;
  wash(zub).child("&View Log").click();
  const Window text = zub.window(title::Report).child("EDIT", 0);
  REQUIRE(text.comesToSay(name + "\r\n"));
  const std::string shown = text.text();
  const bool isWhole = shown.find("Log file generated at ") != std::string::npos;
  const bool family9x = (GetVersion() & 0x80000000) != 0;
  CHECK(isWhole == !family9x);
  CHECK((shown.size() < 65536) == family9x);
  CHECK(shown.starts_with("(The beginning is left out") == family9x);
}
