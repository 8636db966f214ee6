#include <doctest/doctest.h>

#include <algorithm>
#include <vector>

#include "app/ProgramPc.h"
#include "cleaners/BrowserFiles.h"

using namespace zub;

namespace {

using Lines = std::vector<std::string>;

const std::string User = "HKEY_CURRENT_USER\\Software\\";
const std::string Explorer = User + "Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string Internet =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
const std::string AppData = "C:\\WINDOWS\\Application Data\\";
const std::string Profile = AppData + "Mozilla\\Profiles\\default\\abcd.slt\\";

// Files, folders (with a backslash at the end) and keys, which hold a value.
struct Seed {
  const char* task;
  Lines gone;
  Lines kept;
};
const Seed seeds[] = {
    {"the document history",
     {Explorer + "RecentDocs", Explorer + "StreamMRU", Explorer + "Streams", "C:\\WINDOWS\\Recent\\a.lnk",
      "C:\\WINDOWS\\Recent\\Sub\\", "C:\\WINDOWS\\Recent\\Sub\\b.lnk"},
     {Explorer + "RecentDocsKept", Explorer + "StreamsKept", "C:\\WINDOWS\\a.lnk", "C:\\My Documents\\a"}},
    {"the Find history", {Explorer + "Doc Find Spec MRU"}, {Explorer + "Doc Find Spec"}},
    {"the Run MRU", {Explorer + "RunMRU"}, {Explorer + "RunMRUKept"}},
    {"the TEMP folder",
     {"C:\\WINDOWS\\TEMP\\a.tmp", "C:\\WINDOWS\\TEMP\\Sub\\", "C:\\WINDOWS\\TEMP\\Sub\\b"},
     {"C:\\WINDOWS\\TEMPORARY\\a.tmp", "C:\\TEMP\\a.tmp"}},
    {"the SCANDISK files",
     {"C:\\scandisk.log", "C:\\FILE0000.CHK", "C:\\FILE0001.CHK"},
     {"C:\\FILE0000.CHR", "C:\\WINDOWS\\FILE0000.CHK", "C:\\WINDOWS\\scandisk.log"}},
    {"the recycle bin",
     {"C:\\recycled\\DC1.TXT", "C:\\recycled\\INFO2"},
     {"C:\\recycled\\Sub\\", "C:\\recycled\\Sub\\b", "C:\\recycler\\c"}},
    {"the Office MRU",
     {AppData + "Microsoft\\Office\\Recent\\a.LNK", User + "Microsoft\\Office\\10.0\\Word\\Data",
      User + "Microsoft\\Office\\8.0\\Access\\Data"},
     {AppData + "Microsoft\\Office\\a.LNK", User + "Microsoft\\Office\\10.0\\Word\\Options",
      User + "Microsoft\\Office\\8.0\\Access", User + "Microsoft\\Office\\11.0\\Word\\Data"}},
    {"the Windows Media Player MRU",
     {User + "Microsoft\\MediaPlayer\\Player\\RecentFileList",
      User + "Microsoft\\MediaPlayer\\Player\\RecentURLList"},
     {User + "Microsoft\\MediaPlayer\\Player", User + "Microsoft\\MediaPlayer\\Player\\Settings"}},
    {"Netscape files ans registry entries",
     {Profile + "history.dat", Profile + "Cache\\a", Profile + "NewCache\\b", Profile + "Mail\\A\\Trash",
      Profile + "Mail\\A\\Trash.msf"},
     {Profile + "prefs.js", Profile + "Mail\\A\\Inbox", Profile + "Trash"}},
    {"IE files and registry entries",
     {"C:\\WINDOWS\\Cookies\\me@a.txt", "C:\\WINDOWS\\History\\Day\\", "C:\\WINDOWS\\History\\Day\\a",
      "C:\\WINDOWS\\Cache\\Content.IE5\\", "C:\\WINDOWS\\Cache\\Content.IE5\\index.dat",
      "C:\\WINDOWS\\Downloaded Program Files\\a.ocx", User + "Microsoft\\Internet Explorer\\TypedUrls",
      Internet + "5.0\\Cache\\Extensible Cache", Internet + "4.0\\Cache\\Extensible Cache"},
     {"C:\\WINDOWS\\Cookies\\me@b.txt", "C:\\WINDOWS\\Cookies\\note.doc",
      User + "Microsoft\\Internet Explorer", Internet + "5.0\\Cache", "C:\\WINDOWS\\Content.IE5\\index.dat"}},
    {"Shop ",
     {"C:\\Shop\\a.dat", "C:\\Shop\\b.dat", User + "Shop\\Recent"},
     {"C:\\Shop\\c.txt", User + "Shop"}},
    {"Unticked ", {}, {"C:\\Unticked.dat"}},
    // The row names one value of the key; the keys wiped before make it take the whole key.
    {"Adobe Acrobat Full 4.x ",
     {User + "Adobe\\Adobe Acrobat\\4.0\\AdobeViewer"},
     {User + "Adobe\\Adobe Acrobat\\4.0\\AdobeViewerKept", User + "Adobe\\Adobe Acrobat\\4.0"}},
    {"Gold Wave Editor ", {"C:\\WINDOWS\\goldwave.ini"}, {"C:\\WINDOWS\\goldwave.exe", "C:\\goldwave.ini"}},
};

bool isKey(std::string_view seed) {
  return seed.starts_with("HKEY");
}
bool isFolder(std::string_view seed) {
  return seed.ends_with('\\');
}

struct WholePc : ProgramPc {
  WholePc() {
    for (const char* folder : {"Recent", "Cookies", "History", "Cache"}) {
      pc.shellFolder(folder, std::string("C:\\WINDOWS\\") + folder);
    }
    pc.shellFolder("AppData", AppData.substr(0, AppData.size() - 1));
    plugin("Shop", "C:\\Shop\\a.dat\r\nC:\\Shop\\b.*\r\n");
    pc.file("C:\\Program Files\\Zubrane\\Plugins\\Shop.zb2", User + "Shop\\Recent- Key*\r\n");
    plugin("Unticked", "C:\\Unticked.dat\r\n");
    for (const Seed& seed : seeds) {
      for (const Lines* paths : {&seed.gone, &seed.kept}) {
        for (const std::string& path : *paths) plant(path);
      }
    }
    pc.file("C:\\WINDOWS\\Cookies\\index.dat", indexFile({cookieRecord("me", "keep.example/", "me@b.txt"),
                                                          cookieRecord("me", "go.example/", "me@a.txt")}));
    pc.file("C:\\WINDOWS\\Cookies\\ZUBKeep.inf", "http://keep.example/ \r\n");
    pc.file(AppData + "Mozilla\\Registry.dat", profileRegistry({withoutLastPathPart(Profile)}));
    pc.file(Profile + "Cookies.txt",
            cookieLine(".shop.example", "login", "me") + cookieLine("news.example", "n", "1"));
    pc.file(Profile + "ZUBKeepNS6.inf", ".shop.example\tlogin\t\r\n");
    begin();
  }
  void begin() {
    program = std::make_unique<Program>(pc.platform());
    program->start();
  }
  void plant(const std::string& path) {
    if (isKey(path)) {
      pc.value(path, "a", "x");
    } else if (isFolder(path)) {
      pc.folder(path.substr(0, path.size() - 1));
    } else {
      pc.file(path);
    }
  }
  void chooseAll() {
    for (int row = 0; row < IconChecks::Count; ++row) options().LstIcons.Check(row, 1);
    for (CheckOption Options::*option :
         {&Options::chkIECache, &Options::chkIECookies, &Options::chkIEProgram, &Options::chkIEIndex,
          &Options::chkIEAutocomplete, &Options::chkNSCache, &Options::chkNSCookies, &Options::chkNSMail,
          &Options::chkNSHistory}) {
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

std::string sorted(Lines lines) {
  std::ranges::sort(lines);
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// A diff's lines without what files and values hold, sorted.
std::string outline(std::string_view diff) {
  Lines lines;
  while (!diff.empty()) {
    std::string line(diff.substr(0, diff.find('\n')));
    diff.remove_prefix(line.size() + 1);
    if (line.find("value ") == 2) line.erase(line.find("\" = "));
    if (line.find("file ") == 2) line.erase(line.rfind(' ', line.rfind(' ') - 1));
    lines.push_back(line);
  }
  return sorted(std::move(lines));
}

Lines headings(std::string_view report) {
  constexpr std::string_view start = "ZUB has cleaned ";
  Lines found;
  for (auto at = report.find(start); at != std::string_view::npos; at = report.find(start, at + 1)) {
    const auto name = at + start.size();
    found.emplace_back(report.substr(name, report.find(", with", name) - name));
  }
  return found;
}

}  // namespace

TEST_CASE("a wash of everything removes each trace, and nothing that lies beside one") {
  Lines expected{"- file " + Profile + "Cookies.txt", "+ file " + Profile + "Cookies.txt",  // rewritten
                 "+ file C:\\ZUBKeepNS6.inf"};  // the first profile is chosen while no folder is
  Lines tasks;
  int files = 0;
  for (const Seed& seed : seeds) {
    if (!seed.gone.empty()) tasks.emplace_back(seed.task);
    for (const std::string& path : seed.gone) {
      if (isKey(path)) {
        expected.push_back("- key " + path);
        expected.push_back("- value " + path + " \"a");
      } else if (isFolder(path)) {
        expected.push_back("- folder " + path.substr(0, path.size() - 1));
      } else {
        expected.push_back("- file " + path);
        ++files;
      }
    }
  }

  for (const int shredder : {0, 1}) {
    WholePc pc;
    pc.chooseAll();
    pc.options().chkBleach.Value(shredder);
    const std::string before = pc.pc.snapshot();
    pc.main().cmdRemove_Click();
    CHECK(outline(pc.pc.diffSince(before)) == sorted(expected));
    CHECK(headings(pc.program->engine.clean.txtResult) == tasks);
    CHECK(pc.pc.bytes(Profile + "Cookies.txt") == cookieLine(".shop.example", "login", "me"));
    CHECK(pc.pc.recycleFlags == std::vector<std::uint32_t>{7});
    const frmAnimated::State& shown = pc.progress().peek().state;
    CHECK(shown.lblRemove.Caption == "Total amount of space restored: " + std::to_string(files) + " Bytes");
    CHECK(shown.lblTasksTotal.Caption == "11");
    CHECK(shown.lblCompleted.Caption == "13");  // the two standard plugins count here alone
    CHECK(pc.program->engine.leftBehind == 0);
    CHECK(pc.pc.messages.empty());

    pc.progress()->cmdFinish_Click();
    const std::string washed = pc.pc.snapshot();
    pc.main().cmdRemove_Click();
    CHECK(pc.pc.diffSince(washed) == "");
    CHECK(headings(pc.program->engine.clean.txtResult) == tasks);
  }
}

TEST_CASE("a wash with plugins skipped leaves theirs, and one with nothing chosen leaves everything") {
  WholePc pc;
  pc.options().LstIcons.Check(iconRow::InternetExplorer, 1);  // with none of its own options
  WholePc::tick(pc.options().lstFiles, {"Shop"});
  pc.options().standardlist.selectAll(true);
  pc.options().chkSkipPlugins.Value(1);
  const std::string before = pc.pc.snapshot();
  pc.main().cmdRemove_Click();
  CHECK(pc.pc.diffSince(before) == "");
  CHECK(headings(pc.program->engine.clean.txtResult) == Lines{"IE files and registry entries"});
  CHECK(pc.progress()->state.lblTasksTotal.Caption == "1");
}

TEST_CASE(
    "the Office values take their whole keys from the first emptied key on, for the rest of the process") {
  WholePc pc;
  const std::string data = User + "Microsoft\\Office\\9.0\\Excel\\Data";
  const auto wash = [&](std::initializer_list<int> rows) {
    pc.pc.value(data, "Settings", "trace");
    pc.pc.value(data, "Beside", "x");
    for (int row = 0; row < IconChecks::Count; ++row) {
      pc.options().LstIcons.Check(row, std::ranges::count(rows, row) > 0 ? 1 : 0);
    }
    pc.main().cmdRemove_Click();
    pc.progress()->cmdFinish_Click();
    CHECK_FALSE(pc.pc.hasValue(data, "Settings"));
    return pc.pc.hasValue(data, "Beside");
  };
  CHECK(wash({iconRow::Office}));
  CHECK(wash({iconRow::Office, iconRow::MediaPlayer}));  // which comes after Office
  CHECK_FALSE(wash({iconRow::Office}));
  pc.begin();
  CHECK(wash({iconRow::Office}));
  CHECK_FALSE(wash({iconRow::Office, iconRow::RunHistory}));  // which comes before it
  CHECK_FALSE(pc.pc.hasKey(data));
}
