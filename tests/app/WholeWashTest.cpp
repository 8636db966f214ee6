#include <doctest/doctest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "app/ProgramPc.h"
#include "cleaners/BrowserFiles.h"
#include "support/CallTrace.h"
#include "support/Golden.h"

using namespace zub;

namespace {

using Lines = std::vector<std::string>;

const std::string User = "HKEY_CURRENT_USER\\Software\\";
const std::string Explorer = User + "Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string AppData = "C:\\WINDOWS\\Application Data\\";
const std::string Profile = AppData + "Mozilla\\Profiles\\default\\abcd.slt\\";

// What a wash takes: files, and keys with one value each.
const Lines traces = {
    Explorer + "RecentDocs", Explorer + "StreamMRU", "C:\\WINDOWS\\Recent\\a.lnk",
    Explorer + "Doc Find Spec MRU", Explorer + "RunMRU", "C:\\WINDOWS\\TEMP\\a.tmp", "C:\\scandisk.log",
    "C:\\FILE0000.CHK", "C:\\recycled\\DC1.TXT", AppData + "Microsoft\\Office\\Recent\\a.LNK",
    User + "Microsoft\\Office\\10.0\\Word\\Data", User + "Microsoft\\MediaPlayer\\Player\\RecentURLList",
    Profile + "history.dat", Profile + "Cache\\a", "C:\\WINDOWS\\Downloaded Program Files\\a.ocx",
    User + "Microsoft\\Internet Explorer\\TypedUrls", "C:\\Shop\\a.dat", User + "Shop\\Recent",
    // The row names one value of the key; the keys wiped before make it take the whole key.
    User + "Adobe\\Adobe Acrobat\\4.0\\AdobeViewer", "C:\\WINDOWS\\goldwave.ini"};
const Lines decoys = {"C:\\recycled\\Sub\\b", Profile + "Cookies.txt", "C:\\WINDOWS\\Cookies\\me@a.txt",
                      "C:\\Unticked.dat"};

bool isKey(std::string_view seed) {
  return seed.starts_with("HKEY");
}

struct WholePc : ProgramPc {
  WholePc() {
    for (const char* folder : {"Recent", "Cookies", "History", "Cache"}) {
      pc.shellFolder(folder, std::string("C:\\WINDOWS\\") + folder);
    }
    pc.shellFolder("AppData", AppData.substr(0, AppData.size() - 1));
    pc.file(AppData + "Mozilla\\Registry.dat", profileRegistry({withoutLastPathPart(Profile)}));
    plugin("Shop", "C:\\Shop\\a.dat\r\n");
    pc.file("C:\\Program Files\\Zubrane\\Plugins\\Shop.zb2", User + "Shop\\Recent- Key*\r\n");
    plugin("Unticked", "C:\\Unticked.dat\r\n");
    plant(traces);
    plant(decoys);
    begin();
  }
  void begin() {
    program = std::make_unique<Program>(pc.platform());
    program->start();
  }
  void plant(const Lines& paths) {
    for (const std::string& path : paths) {
      if (isKey(path)) pc.value(path, "a", "x");
      if (!isKey(path)) pc.file(path);
    }
  }
  void chooseAll() {
    for (int row = 0; row < IconChecks::Count; ++row) options().LstIcons.Check(row, 1);
    for (CheckOption Options::*option : {&Options::chkIEProgram, &Options::chkIEAutocomplete,
                                         &Options::chkNSCache, &Options::chkNSHistory}) {
      (options().*option).Value(1);
    }
    tick(options().lstFiles, {"Shop"});
    tick(options().standardlist, {"Gold Wave Editor", "Adobe Acrobat Full 4.x"});
  }
  static void tick(ListRows& rows, const Lines& names) {
    for (int row = 0; row < rows.ListCount(); ++row) {
      if (std::ranges::count(names, rows.List(row)) > 0) rows.Selected(row, true);
    }
  }
};

}  // namespace

TEST_CASE("of the files that others hold only the browser's indexes are left for the next start") {
  WholePc pc;
  pc.chooseAll();
  Lines held{"C:\\WINDOWS\\Cookies\\me@a.txt", "C:\\WINDOWS\\CacheContent.IE5\\index.dat",
             "C:\\WINDOWS\\HistoryHistory.IE5\\index.dat"};
  const std::string atStart = held[1] + ";" + held[2] + ";";
  std::ranges::copy_if(traces, std::back_inserter(held), [](const auto& path) { return !isKey(path); });
  pc.plant(held);
  for (const std::string& path : held) pc.pc.lock(path);
  for (CheckOption Options::*option : {&Options::chkIECookies, &Options::chkIEIndex}) {
    (pc.options().*option).Value(1);
  }
  pc.main().cmdRemove_Click();
  CHECK(pc.program->engine.leftBehind.size() == held.size());
  std::string left;
  std::istringstream report(pc.program->engine.clean.txtResult);
  constexpr std::string_view told = "\tDelete locked file: The file ";
  for (std::string line; std::getline(report, line);) {
    if (line.starts_with(told)) left += line.substr(told.size(), line.find(" you are") - told.size()) + ";";
  }
  CHECK(left == atStart);
}

TEST_CASE("after a wash that empties keys the Office values take their whole keys, until the process ends") {
  WholePc pc;
  const std::string data = User + "Microsoft\\Office\\9.0\\Excel\\Data";
  const auto keepsOther = [&](std::initializer_list<int> rows) {
    pc.pc.value(data, "Settings", "trace");
    pc.pc.value(data, "Beside", "x");
    for (int row = 0; row < IconChecks::Count; ++row) {
      pc.options().LstIcons.Check(row, std::ranges::count(rows, row) > 0 ? 1 : 0);
    }
    pc.main().cmdRemove_Click();
    pc.progress()->cmdFinish_Click();
    return pc.pc.hasValue(data, "Beside");
  };
  CHECK(keepsOther({iconRow::Office, iconRow::MediaPlayer}));  // which comes after Office
  CHECK_FALSE(keepsOther({iconRow::Office}));
  pc.begin();
  CHECK(keepsOther({iconRow::Office}));
}

namespace {

// What is told now, the numbers of the labels that are lit, with "!" where in bold, and of the marks that tell what is
// done.
std::string boardOf(const frmAnimated::State& shown) {
  const std::pair<int, const Label*> labels[] = {
      {1, &shown.Label1}, {2, &shown.Label2},   {3, &shown.Label3},   {4, &shown.Label4},
      {5, &shown.Label5}, {6, &shown.Label6},   {7, &shown.Label7},   {8, &shown.Label8},
      {9, &shown.Label9}, {10, &shown.Label10}, {11, &shown.Label11}, {14, &shown.Label14}};
  const std::pair<int, const Image*> marks[] = {
      {3, &shown.Image3},   {4, &shown.Image4},   {5, &shown.Image5},   {6, &shown.Image6},
      {7, &shown.Image7},   {8, &shown.Image8},   {9, &shown.Image9},   {10, &shown.Image10},
      {11, &shown.Image11}, {12, &shown.Image12}, {13, &shown.Image13}, {14, &shown.Image14}};
  std::string text =
      shown.lblApplication.Caption + " (" + shown.StatusBar1[0] + "), " + kindOfRemoval(shown) + ", lit";
  for (const auto& [number, label] : labels) {
    if (label->ForeColor == colors::Green) text += " " + std::to_string(number) + (label->Bold ? "!" : "");
  }
  text += ", done";
  for (const auto& [number, mark] : marks) {
    if (mark->picture == Picture::DoneMark) text += " " + std::to_string(number);
  }
  return text + ", " + shown.StatusBar1[1];
}

}  // namespace

TEST_CASE("a wash of everything makes the calls that were approved, in that order") {
  WholePc pc;
  pc.chooseAll();
  for (CheckOption Options::*option :
       {&Options::chkIECookies, &Options::chkIECache, &Options::chkIEIndex, &Options::chkNSCookies,
        &Options::chkNSMail, &Options::chkSkipMessages}) {
    (pc.options().*option).Value(1);
  }
  pc.plant(
      {ProgramPc::Temp + "sub\\deep\\b.tmp", "C:\\WINDOWS\\Cache\\c.htm", "C:\\WINDOWS\\TEMP\\held.tmp"});
  pc.pc.lock("C:\\WINDOWS\\TEMP\\held.tmp");
  pc.pc.fail("delete the key " + User + "Microsoft\\MediaPlayer\\Player\\RecentURLList",
             status::AccessDenied);
  CallTrace trace(pc.pc, pc.program->engine, boardOf);
  pc.main().cmdRemove_Click();
  trace.tellChanges();
  const frmAnimated::State& shown = pc.progress().peek().state;
  CHECK(shown.lblRemove.Caption == "Total amount of space restored: 14 Bytes");
  CHECK(shown.lblTasksTotal.Caption == "11");  // the standard plugins do not count here
  checkGolden("wash.txt", trace.text);
}
