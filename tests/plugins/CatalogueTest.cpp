#include <doctest/doctest.h>

#include <algorithm>
#include <map>

#include "base/Text.h"
#include "plugins/Catalogue.h"

using namespace zub;

namespace {

using Kind = Action::Kind;
using Base = Action::Base;

constexpr std::string_view Names =
    "ACDSee; Adobe Acrobat Full 4.x; Adobe Acrobat Reader 4.x; Adobe Photoshop 6.x; Allaire Homesite 4.x; "
    "Animation Shop 1.x; Animation Shop 3.x; AOL Instant Messanger 3.5; Axialis Media Browser; Babylon; "
    "Chameleon Web Browser; CRT 2.x; Cute MX; EditPad; FlashGet(JetCar); Front Page Express; FTP Voyager; "
    "GetRight 3.x; Gold Wave Editor; Google Toolbar; Graphics Workshop Pro All Versions; Imaging for "
    "Windows; Internet Explorer (4.x and 5.x); IrfanView All Versions; LViewPro 2.x; Macromedia "
    "Dreamweaver 3.x; Macromedia Dreamweaver Ultradev 4.x; Micrografx Picture Publisher 8.x; Microsoft "
    "FreeCell game; Microsoft Front Page; Microsoft Media Player 7.x; Microsoft Photo Editor 3.x; "
    "Microsoft Web Folders; Microsoft Word; Microsoft Works 4.x; Mijenix Powerdesk 3.x; Miscrosoft Visual "
    "Studio 6.0; MSN Browser 6.x Email; MSN Explorer Browser 6.x; Naviscope All Versions; Netzip Download "
    "Demon 3.x; Norton AntiVirus 2000; OnTrack Powerdesk 4.x; Outlook Express 5; Outlook Express 5.x Mail "
    "and News; Paint Shop Pro 5.x; Paint Shop Pro 6.x; Paint Shop Pro 7.x; PhotoDraw 2000; PhotoImpact "
    "5.x; PhotoImpact 6.x; PhotoImpact Viewer 4.x; Psion PsiWin 2.x; Real Networks Real Download "
    "Software; Real Player 7.x, 8.x and GT2; Sonic Foundry Acid 2.x; Sonique Player; Text Pad 3.x; Text "
    "Pad 4.x; Ulead Photo Express (2.x and 3.x); Ultimate Paint; VuePrint All Versions; WebFerret 3.x; "
    "WinAce Archiver 1.x; Windows Address Books and Outlook Contacts; Windows API Setup Logs; Windows "
    "Commander; Windows Direct X Logs; Windows Fault Error Logs; Windows File Checked Logs; Windows ME "
    "Recent RegEdit open key; Windows Media Player 6.x or lower; Windows Paint; Windows Recent Network "
    "Drive List; Windows Task Scheduler Logs; Windows WBEM Logs; Windows Winint Logs; Windows WordPad; "
    "WinRAR (all versions); WinZip 7.x and 8.x; Xara 3D 4.x; Yamaha S-YXG100; ZipMagic (all versions); "
    "Zone Labs Zone Alarm Firewall";

const Catalogue& builtIn() {
  static const Catalogue catalogue = builtInCatalogue();
  return catalogue;
}

std::vector<std::string> told(const CatalogueRow& row) {
  std::vector<std::string> lines;
  for (const auto& action : row.actions) {
    const std::string place = action.base == Base::AppData   ? "appdata"
                              : action.base == Base::Windows ? "windows"
                                                             : action.trace.text;
    lines.push_back(action.kind == Kind::Trace ? place : place + "|" + action.path);
  }
  return lines;
}

const CatalogueRow& rowOf(const Catalogue& catalogue, std::string_view name) {
  const auto* row = catalogue.find(name);
  REQUIRE_MESSAGE(row != nullptr, name);
  return *row;
}

std::string failureOf(std::string_view text) {
  try {
    Catalogue::parse(text);
  } catch (const CatalogueError& error) {
    return error.what();
  }
  return "none";
}

}  // namespace

TEST_CASE("the catalogue has its 84 names, in the order of the sorted list, and its extent") {
  std::string names;
  std::map<std::string, int> count;
  for (const auto& row : builtIn().rows()) {
    names += (names.empty() ? "" : "; ") + row.name;
    bool files = false;
    bool traces = false;
    for (const auto& action : row.actions) {
      (action.kind == Kind::Trace ? traces : files) = true;
      if (action.kind == Kind::Trace) {
        ++count["traces"];
        const bool value = contains(action.trace.text, "+ Value`= ");
        const bool key = action.trace.text.ends_with("- Key*");
        CHECK_FALSE((value && key));
        ++count[value ? "values" : key ? "keys" : "neither"];
        if (action.trace.text.starts_with("HKey_Classes_Root\\")) ++count["classes root in " + row.name];
        // A hyphen cuts the path of the key that is to be emptied.
        if (key && action.trace.text.find('-') != action.trace.text.rfind('-'))
          ++count["hyphen in " + row.name];
      } else {
        ++count[action.kind == Kind::File ? "files" : "folders"];
        ++count[action.base == Base::Windows   ? "in windows"
                : action.base == Base::AppData ? "in appdata"
                                               : "in registry"];
      }
    }
    ++count[files && traces ? "rows of both" : files ? "rows of files" : "rows of traces"];
    if (row.actions.size() > 50) count[row.name] = static_cast<int>(row.actions.size());
  }
  const std::map<std::string, int> expected = {
      {"rows of traces", 56},
      {"rows of files", 23},
      {"rows of both", 5},
      {"traces", 741},
      {"values", 611},
      {"keys", 128},
      {"neither", 2},
      {"files", 27},
      {"folders", 10},
      {"in windows", 18},
      {"in appdata", 17},
      {"in registry", 2},
      {"classes root in Real Player 7.x, 8.x and GT2", 22},
      {"hyphen in WinAce Archiver 1.x", 3},
      {"OnTrack Powerdesk 4.x", 102},
      {"Mijenix Powerdesk 3.x", 102},
      {"Text Pad 3.x", 72},
      {"Text Pad 4.x", 72},
  };
  CHECK(count == expected);
  CHECK(names == Names);
}

TEST_CASE("rows that are known to the letter") {
  const std::string user = "HKey_Current_User\\Software\\";
  const std::string machine = "HKEY_LOCAL_MACHINE\\SOFTWARE\\";
  const std::string standard = "HKey_Users\\.DEFAULT\\Software\\";
  const std::string aim =
      user + "America Online\\AOL Instant Messenger (TM)\\CurrentVersion\\Users\\<yourAIMusername>\\";
  const std::string mse = user + "Microsoft\\MSE\\9.0";
  const std::string acrobat = user + "Adobe\\Adobe Acrobat\\4.0\\AdobeViewer+ Value`= avpRecentFile";
  const std::map<std::string, std::vector<std::string>> rows = {
      {"Gold Wave Editor", {"windows|goldwave.ini"}},
      {"ACDSee", {"appdata|ACD Systems\\ACDSee\\ImageDB.ddf", "appdata|ACD Systems\\ACDSee\\ImageDB.dtf"}},
      {"Outlook Express 5.x Mail and News", {"appdata|Microsoft\\Outlook Express\\*.dbx"}},
      {"Windows WBEM Logs", {"windows|SYSTEM\\WBEM\\logs\\*.*"}},
      {"Psion PsiWin 2.x",
       {"windows|TEMP\\EPOCLOG.001", user + "Psion\\CurrentUser- Key*", user + "Psion\\Users- Key*"}},
      {"Adobe Acrobat Full 4.x",
       {acrobat + "1", acrobat + "2", acrobat + "3", acrobat + "4", acrobat + "5", acrobat + "6",
        acrobat + "7", acrobat + "8", acrobat + "9"}},
      {"Internet Explorer (4.x and 5.x)",
       {user + "Microsoft\\Internet Explorer+ Value`= download directory",
        standard + "Microsoft\\Internet Explorer+ Value`= download directory"}},
      {"Norton AntiVirus 2000", {machine + "Symantec\\InstalledApps+ Value`= NAV|Activity.log"}},
      {"Miscrosoft Visual Studio 6.0",
       {machine + "Microsoft\\VisualStudio\\6.0+ Value`= InstallDir|newfileitems\\*.*",
        mse + "+ Value`= defaultfileopenlocation", mse + "+ Value`= defaultnewprojectlocation",
        mse + "+ Value`= lastloadedsolution", mse + "\\FileMRUList- Key*", mse + "\\FileMRUList- Key*",
        mse + "\\MenuMRUList- Key*", mse + "\\ProjectMRUList- Key*"}},
      {"Microsoft Media Player 7.x",
       {"appdata|Microsoft\\Media Player\\*.*", "windows|wmplibrary_v_0_12.db",
        user + "Microsoft\\MediaPlayer\\player\\settings+ Value`= opendir",
        user + "Microsoft\\MediaPlayer\\Player\\RecentFileList- Key*",
        standard + "Microsoft\\MediaPlayer\\player\\settings+ Value`= opendir",
        standard + "Microsoft\\MediaPlayer\\Player\\RecentFileList- Key*",
        standard + "Microsoft\\MediaPlayer\\Player\\RecentURLList- Key*"}},
      {"MSN Explorer Browser 6.x",
       {"windows|cookies\\3\\index.dat", "windows|cookies\\2\\index.dat", "windows|cookies\\1\\index.dat",
        "appdata|MSN6\\*.dat"}},
      {"AOL Instant Messanger 3.5", {aim + "recent IM ScreenNames- Key*", aim + "recent ScreenNames- Key*"}},
      {"Windows Recent Network Drive List", {"HKEY_CURRENT_USER\\Network\\Recent- KEY*"}},
  };
  for (const auto& [name, lines] : rows) CHECK_MESSAGE(told(rowOf(builtIn(), name)) == lines, name);
  CHECK(told(rowOf(builtIn(), "GetRight 3.x")).back() ==
        "HKEY_CURRENT_USER\\Software\\HeadLight\\GetRight\\TypedURLS- KEY*");
  CHECK(std::ranges::count(
            told(rowOf(builtIn(), "Real Networks Real Download Software")),
            "HKey_Local_Machine\\.default\\Software\\RealNetworks\\RealDownload\\4.0\\Jobs- Key*") == 2);
}

TEST_CASE("descriptions") {
  const std::map<std::string, std::string> quoted = {
      {"Gold Wave Editor", "This plugin cleans Gold Wave Editor's recent list."},
      {"Outlook Express 5.x Mail and News",
       "This plugin removes ALL Outlook Express 5 mail folders and news groups including the inbox and "
       "deleted items folder. Do not use this plugin if you have mail or news group items you want to keep."},
      {"Psion PsiWin 2.x",
       "This plugin cleans all Psion PsiWin 2.x's details of every Psion handheld connected to the docking "
       "PC. Note: Previously made backups to the docking PC will no longer be accessible if this plugin is "
       "run."},
      {"MSN Explorer Browser 6.x",
       "This plugin cleans MSN Explorer Browser 6.x's exported netscape cookies and duplicate index.dat "
       "files. Note: The MSN browser uses Internet Explorer so make sure you have all the appropriate "
       "Internet Explorer options checked in the main tab."},
  };
  for (const auto& [name, text] : quoted) CHECK(rowOf(builtIn(), name).description == text);
  for (const auto& row : builtIn().rows()) {
    if (row.name == "Outlook Express 5.x Mail and News") continue;
    CHECK_MESSAGE(row.description.starts_with("This plugin cleans "), row.name);
  }
}

TEST_CASE("ranges stand where they like in a trace; remarks and line ends do not count") {
  const auto catalogue = Catalogue::parse(
      "# A remark.\r\n\r\n[A]\r\nabout\tText | {1..2}\r\n  trace  HKEY_USERS\\Clip{9..11}- Key*  \r\n"
      "file HKEY_USERS\\A+ Value`= B | x y.log\n"
      "trace hkey_Users\\A+ Value`= File{0..0}");
  const auto& row = rowOf(catalogue, "A");
  CHECK(row.description == "Text | {1..2}");
  CHECK(told(row) == std::vector<std::string>{"HKEY_USERS\\Clip9- Key*", "HKEY_USERS\\Clip10- Key*",
                                              "HKEY_USERS\\Clip11- Key*", "HKEY_USERS\\A+ Value`= B|x y.log",
                                              "hkey_Users\\A+ Value`= File0"});
  CHECK(catalogue.find("a") == nullptr);
}

TEST_CASE("a malformed catalogue is refused with line and reason") {
  const std::string row = "[A]\nabout a\n";
  const std::string hive = "line 3: a trace begins with the name of a hive and a backslash";
  const std::string marker = "line 3: a trace ends in \"- Key*\", or in \"+ Value`= \" and a name";
  const std::string braces = "line 3: a range is written {1..9}";
  const std::string range = "line 3: a range is two numbers from 0 to 999, the lower one first";
  const std::pair<std::string, std::string> cases[] = {
      {row + "fille windows | a", "line 3: unknown word \"fille\""},
      {"trace HKEY_USERS\\a- Key*", "line 1: no name in square brackets stands before this line"},
      {"[A", "line 1: a name stands in square brackets"},
      {"[A]\ntrace HKEY_USERS\\a- Key*", "line 2: the description comes before the first action"},
      {"\n[A]\n[B]\nabout b", "line 2: the description is missing"},
      {"[A]\nabout", "line 1: the description is missing"},
      {row + "about b", "line 3: a second description"},
      {"[A]\nabout " + std::string(301, 'x'), "line 2: the description is longer than 300 characters"},
      {row + "\n[B]\nabout b\nfile windows | b", "line 1: there is no action"},
      {row + "file windows | a\n[A]", "line 4: this name is there twice"},
      {row + "file windows", "line 3: a part between | is missing"},
      {row + "folder appdata | a", "line 3: a part between | is missing"},
      {row + "file windows | a | *.*", "line 3: too many parts between |"},
      {row + "file window | a", "line 3: unknown place \"window\""},
      {row + "file HKEY_USERS\\a- Key* | a", "line 3: unknown place \"HKEY_USERS\\a- Key*\""},
      {row + "trace HKEY_USERS- Key*", hive},
      {row + "trace HKCU\\a- Key*", hive},
      {row + "trace HKEY_USERS\\a", marker},
      {row + "trace HKEY_USERS\\a-Key*", marker},
      {row + "trace HKEY_USERS\\a+ value`= a", marker},
      {row + "trace HKEY_USERS\\{1..2- Key*", braces},
      {row + "trace HKEY_USERS\\}1..2{- Key*", braces},
      {row + "trace HKEY_USERS\\{1..2}{1..2}- Key*", "line 3: a trace holds one range at most"},
      {row + "trace HKEY_USERS\\{2..1}- Key*", range},
      {row + "trace HKEY_USERS\\{1.9}- Key*", range},
      {row + "trace HKEY_USERS\\{1..1000}- Key*", range},
      {row + "trace HKEY_USERS\\{1..99999999999}- Key*", range},
      {"[A]\nabout " + std::string(300, 'x') + "\nfile windows | a", "none"},
      {"", "none"},
  };
  for (const auto& [text, failure] : cases) CHECK(failureOf(text) == failure);
}
