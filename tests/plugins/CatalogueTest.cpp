#include <doctest/doctest.h>

#include <algorithm>

#include "base/Text.h"
#include "plugins/Catalogue.h"
#include "plugins/StandardPluginRun.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

// They must be there: each is the name of a saved tick.
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

// What is known of rows for certain, in the catalogue's own form. "+" for a description that is not: these rows
// have exactly these actions. "-": they have these among others.
constexpr std::string_view Known = R"(
[Gold Wave Editor]
about   This plugin cleans Gold Wave Editor's recent list.
file    windows | goldwave.ini
[ACDSee]
about   +
file    appdata | ACD Systems\ACDSee\ImageDB.ddf
file    appdata | ACD Systems\ACDSee\ImageDB.dtf
[Outlook Express 5.x Mail and News]
about   This plugin removes ALL Outlook Express 5 mail folders and news groups including the inbox and deleted items folder. Do not use this plugin if you have mail or news group items you want to keep.
folder  appdata | Microsoft\Outlook Express | *.dbx
[Windows WBEM Logs]
about   +
folder  windows | SYSTEM\WBEM\logs | *.*
[Psion PsiWin 2.x]
about   This plugin cleans all Psion PsiWin 2.x's details of every Psion handheld connected to the docking PC. Note: Previously made backups to the docking PC will no longer be accessible if this plugin is run.
file    windows | TEMP\EPOCLOG.001
trace   HKey_Current_User\Software\Psion\CurrentUser- Key*
trace   HKey_Current_User\Software\Psion\Users- Key*
[Adobe Acrobat Full 4.x]
about   +
trace   HKey_Current_User\Software\Adobe\Adobe Acrobat\4.0\AdobeViewer+ Value`= avpRecentFile{1..9}
[Internet Explorer (4.x and 5.x)]
about   +
trace   HKey_Current_User\Software\Microsoft\Internet Explorer+ Value`= download directory
trace   HKey_Users\.DEFAULT\Software\Microsoft\Internet Explorer+ Value`= download directory
[Norton AntiVirus 2000]
about   +
file    HKEY_LOCAL_MACHINE\SOFTWARE\Symantec\InstalledApps+ Value`= NAV | Activity.log
[Miscrosoft Visual Studio 6.0]
about   +
folder  HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\VisualStudio\6.0+ Value`= InstallDir | newfileitems | *.*
trace   HKey_Current_User\Software\Microsoft\MSE\9.0+ Value`= defaultfileopenlocation
trace   HKey_Current_User\Software\Microsoft\MSE\9.0+ Value`= defaultnewprojectlocation
trace   HKey_Current_User\Software\Microsoft\MSE\9.0+ Value`= lastloadedsolution
trace   HKey_Current_User\Software\Microsoft\MSE\9.0\FileMRUList- Key*
trace   HKey_Current_User\Software\Microsoft\MSE\9.0\FileMRUList- Key*
trace   HKey_Current_User\Software\Microsoft\MSE\9.0\MenuMRUList- Key*
trace   HKey_Current_User\Software\Microsoft\MSE\9.0\ProjectMRUList- Key*
[Microsoft Media Player 7.x]
about   +
folder  appdata | Microsoft\Media Player | *.*
file    windows | wmplibrary_v_0_12.db
trace   HKey_Current_User\Software\Microsoft\MediaPlayer\player\settings+ Value`= opendir
trace   HKey_Current_User\Software\Microsoft\MediaPlayer\Player\RecentFileList- Key*
trace   HKey_Users\.DEFAULT\Software\Microsoft\MediaPlayer\player\settings+ Value`= opendir
trace   HKey_Users\.DEFAULT\Software\Microsoft\MediaPlayer\Player\RecentFileList- Key*
trace   HKey_Users\.DEFAULT\Software\Microsoft\MediaPlayer\Player\RecentURLList- Key*
[MSN Explorer Browser 6.x]
about   This plugin cleans MSN Explorer Browser 6.x's exported netscape cookies and duplicate index.dat files. Note: The MSN browser uses Internet Explorer so make sure you have all the appropriate Internet Explorer options checked in the main tab.
file    windows | cookies\3\index.dat
file    windows | cookies\2\index.dat
file    windows | cookies\1\index.dat
folder  appdata | MSN6 | *.dat
[AOL Instant Messanger 3.5]
about   +
trace   HKey_Current_User\Software\America Online\AOL Instant Messenger (TM)\CurrentVersion\Users\<yourAIMusername>\recent IM ScreenNames- Key*
trace   HKey_Current_User\Software\America Online\AOL Instant Messenger (TM)\CurrentVersion\Users\<yourAIMusername>\recent ScreenNames- Key*
[Windows Recent Network Drive List]
about   +
trace   HKEY_CURRENT_USER\Network\Recent- KEY*
[GetRight 3.x]
about   -
trace   HKEY_CURRENT_USER\Software\HeadLight\GetRight\TypedURLS- KEY*
[WinAce Archiver 1.x]
about   -
trace   HKey_Current_User\software\e-merge\winace\1.0\favorites- Key*
trace   HKey_Current_User\software\e-merge\winace\1.0\copy- Key*
[Real Networks Real Download Software]
about   -
trace   HKey_Local_Machine\.default\Software\RealNetworks\RealDownload\4.0\Jobs- Key*
trace   HKey_Local_Machine\.default\Software\RealNetworks\RealDownload\4.0\Jobs- Key*
[Real Player 7.x, 8.x and GT2]
about   -
trace   HKey_Current_User\Software\RealNetworks\RealPlayer\6.0\Preferences\MostRecentClips{1..8}- Key*
[WinRAR (all versions)]
about   -
trace   HKey_Current_User\Software\WinRAR\ArcHistory- Key*
trace   HKey_Current_User\Software\WinRAR\DialogEditHistory\ArcName- Key*
trace   HKey_Current_User\Software\WinRAR\DialogEditHistory\ExtrPath- Key*
[WinZip 7.x and 8.x]
about   -
trace   HKey_Current_User\Software\Nico Mak Computing\WinZip\filemenu+ Value`= filemenu{1..9}
trace   HKey_Current_User\Software\Nico Mak Computing\WinZip\extract+ Value`= extract{0..9}
[Windows Media Player 6.x or lower]
about   -
trace   HKey_Current_User\Software\Microsoft\MediaPlayer\Player\RecentFileList+ Value`= File{0..9}
trace   HKey_Current_User\Software\Microsoft\MediaPlayer\Player\RecentURLList+ Value`= URL{0..9}
[Windows Paint]
about   -
trace   HKey_Current_User\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List+ Value`= File{1..4}
[Windows WordPad]
about   -
trace   HKey_Current_User\Software\Microsoft\Windows\CurrentVersion\Applets\Wordpad\Recent File List+ Value`= File{1..4}
[Windows ME Recent RegEdit open key]
about   -
trace   HKey_Current_User\Software\Microsoft\Windows\CurrentVersion\Applets\Regedit+ Value`= LastKey
[Zone Labs Zone Alarm Firewall]
about   -
folder  windows | Internet Logs | *.log
)";

std::vector<std::string> told(const CatalogueRow& row) {
  std::vector<std::string> lines;
  for (const Action& action : row.actions) {
    const int base = static_cast<int>(action.base);
    lines.push_back(joined({std::to_string(base), action.trace.text, "|", action.path}));
  }
  return lines;
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

TEST_CASE("the catalogue holds the names that must be there, sorted, and what is known of them") {
  const Catalogue catalogue = builtInCatalogue();
  std::string names;
  for (const CatalogueRow& row : catalogue.rows()) {
    if (contains(Names, row.name)) (names += names.empty() ? "" : "; ") += row.name;
    const bool removesAll = row.name == "Outlook Express 5.x Mail and News";
    CHECK_MESSAGE((removesAll || row.description.starts_with("This plugin cleans ")), row.name);
  }
  CHECK(names == Names);
  CHECK(std::ranges::is_sorted(catalogue.rows(), {}, [](const auto& row) { return upperAscii(row.name); }));

  const Catalogue certain = Catalogue::parse(Known);
  for (const CatalogueRow& known : certain.rows()) {
    CAPTURE(known.name);
    const CatalogueRow* row = catalogue.find(known.name);
    REQUIRE(row != nullptr);
    if (known.description.size() > 1) CHECK(row->description == known.description);
    auto lines = told(*row);
    if (known.description == "-") {
      std::erase_if(lines,
                    [all = told(known)](const auto& line) { return std::ranges::count(all, line) == 0; });
    }
    CHECK(lines == told(known));
  }
}

TEST_CASE("all actions of the catalogue do what they seem to say, but for those that are odd on purpose") {
  WashFixture wash;
  wash.pc.shellFolder("AppData", "C:\\User");
  wash.pc.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Symantec\\InstalledApps", "NAV", "C:\\NAV");
  wash.pc.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\VisualStudio\\6.0", "InstallDir", "C:\\VS");
  std::string odd;
  const Catalogue catalogue = builtInCatalogue();
  for (const CatalogueRow& row : catalogue.rows()) {
    const auto meanings = describeStandardPlugin(wash.engine, row);
    const auto count = std::ranges::count(meanings, Meaning::Verdict::Plain, &Meaning::verdict);
    const auto rest = meanings.size() - static_cast<std::size_t>(count);
    if (rest != 0) odd += row.name + " " + std::to_string(rest) + "; ";
  }
  CHECK(odd ==
        "GetRight 3.x 1; Real Player 7.x, 8.x and GT2 22; WinAce Archiver 1.x 3; "
        "Windows Recent Network Drive List 1; ");
}

TEST_CASE("a row warns of a loss that is more than a list") {
  const auto warns = [](const char* text) { return CatalogueRow{"A", text, {}}.warns(); };
  CHECK(warns("It removes ALL mail."));
  CHECK(warns("Do not use this plugin if you want to keep it."));
  CHECK_FALSE(warns("This plugin cleans INSTALL and all logs."));
}

TEST_CASE("ranges stand where they like in a trace; remarks and line ends do not count") {
  const auto catalogue = Catalogue::parse(
      "# A remark.\r\n\r\n[A]\r\nabout\tText | {1..2}\r\n  trace  HKEY_USERS\\Clip{9..11}- Key*  \r\n"
      "file HKEY_USERS\\A+ Value`= B | x y.log\n"
      "trace hkey_Users\\A+ Value`= File{0..0}");
  const auto& row = catalogue.rows().front();
  CHECK(row.description == "Text | {1..2}");
  CHECK(told(row) == std::vector<std::string>{"0HKEY_USERS\\Clip9- Key*|", "0HKEY_USERS\\Clip10- Key*|",
                                              "0HKEY_USERS\\Clip11- Key*|",
                                              "3HKEY_USERS\\A+ Value`= B|x y.log",
                                              "0hkey_Users\\A+ Value`= File0|"});
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
