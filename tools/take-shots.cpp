// Takes the pictures of the guide: every window and tab, on a PC that has been lived with. It is a case of the program
// that drives the desktop and runs only where it is asked for by name; it leaves bitmaps in the folder ZUB_PICTURES.
#include <cstdlib>

#include "cleaners/BrowserFiles.h"
#include "windows/Story.h"

using namespace zub;
using namespace zub::drive;

namespace {

// In milliseconds: what windows and effects under the pointer take, and what they take at least.
constexpr DWORD ToSettle = 700, ToPaint = 300;

// Writes a part of the screen as a bitmap file of 24 bits a pixel.
void savePicture(const pc::fs::path& file, const RECT& part) {
  const LONG width = part.right - part.left, height = part.bottom - part.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, static_cast<int>(width), static_cast<int>(height));
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, static_cast<int>(width), static_cast<int>(height), screen, static_cast<int>(part.left),
         static_cast<int>(part.top), SRCCOPY);
  SelectObject(memory, before);

  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = height;
  info.biPlanes = 1;
  info.biBitCount = 24;
  std::vector<char> pixels(static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height));
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), reinterpret_cast<BITMAPINFO*>(&info),
            DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);

  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;  // "BM"
  header.bfOffBits = sizeof header + sizeof info;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
  std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
  bytes.append(reinterpret_cast<const char*>(&info), sizeof info).append(pixels.data(), pixels.size());
  pc::put(file, bytes);
}

void takeArea(const std::string& name, const RECT& area, DWORD pause = ToSettle) {
  Sleep(pause);
  savePicture(pc::fs::path(std::getenv("ZUB_PICTURES")) / (name + ".bmp"), area);
}

void take(const std::string& name, const Window& window) {
  movePointer(1, 1);
  takeArea(name, window.place());
}

void seedOptions() {
  for (const char* name :
       {"chkIE", "chkOfficeMRU", "chkRecycleBin", "chkRunHistory", "chkDocHistory", "chkTempFolder",
        "chkFindHistory", "chkNetscape", "chkIECache", "chkIECookies", "chkIEAutocomplete", "chkNSCookie",
        "chkBleach", "chkLoadStartup", "ZUBPlugin Home Photo Album", "ZUBPlugin Modem and Fax Logs"})
    pc::option(name);
  pc::option("cmbShredder", "2");
  pc::option("lblLastRemoval", "Last removal on 11/19/2026 at 8:14:03 PM");
}

void seedCookies() {
  const pc::fs::path folder = pc::cookies();
  std::string index = indexFile({});
  const struct {
    const char* site;
    const char* bytes;
  } cookies[] = {{"news.example/", "edition\nmorning\nnews.example/\n1024\n"},
                 {"shop.example/", "basket\nlamp, 2 bulbs\nshop.example/\n1024\n"},
                 {"mail.example/", "session\nann\nmail.example/\n1024\n"},
                 {"ads.example/", "id\n83021774\nads.example/\n1024\n"},
                 {"weather.example/", "town\nBath\nweather.example/\n1024\n"}};
  for (const auto& [site, bytes] : cookies) {
    const std::string file = "ann@" + std::string(site).substr(0, std::string(site).find('.')) + "[1].txt";
    pc::put(folder / file, bytes);
    index += cookieRecord("ann", site, file);
  }
  pc::put(folder / "index.dat", index);
  pc::put(folder / "ZUBKeep.inf", "http://shop.example/ \r\nhttp://mail.example/ \r\n");

  const pc::fs::path profile = pc::appData() / "Mozilla" / "Profiles" / "ann" / "k3x0q7.slt";
  pc::put(profile / "Cookies.txt", cookieLine("travel.example", "from", "Leeds") +
                                       cookieLine("library.example", "card", "20117") +
                                       cookieLine("ads.example", "id", "83021774"));
  pc::put(profile / "ZUBKeepNS6.inf", "library.example\tcard\t\r\n");
  pc::put(pc::appData() / "Mozilla" / "Registry.dat", profileRegistry({profile.string()}));
}

void seedFiles() {
  for (const char* name :
       {"letter to the bank.doc.lnk", "budget.xls.lnk", "holiday photos.lnk", "recipe.txt.lnk"})
    pc::put(pc::recent() / name, std::string(600, 'x'));
  constexpr int Files = 60;
  for (int file = 0; file < Files; ++file)
    pc::put(pc::temp() / ("~DF" + std::to_string(4711 + 37 * file) + ".tmp"),
            std::string(5 * 1024 * 1024, 'x'));
}

void takeTabs(const Window& main) {
  constexpr DWORD FirstTick = 1000;  // of the clock
  Sleep(FirstTick);
  take("main", main);
  openTab(main, "Custom Plugins");
  rows::click(main.child("SysListView32", 0), 1);
  take("plugins", main);
  openTab(main, "Options");
  main.child("Use shredder").tick();
  main.child("Use shredder").tick();
  take("options", main);
  openTab(main, "Scheduler");
  main.child("&Add").click();
  fill(main.child("EDIT", 0), "12/24/2026");
  fill(main.child("EDIT", 1), "6:00 PM");
  main.child("&Add").click();
  // Wine makes an entry of its own, the first, for a task without one.
  const Window dated = main.child("LISTBOX", 0);
  REQUIRE(soon([&] { return rows::count(dated) == 3; }));
  rows::click(dated, 0);
  main.child("&Remove").click();
  REQUIRE(soon([&] { return rows::count(dated) == 2; }));
  take("scheduler", main);
  openTab(main, " Standard Plugins");
  const Window standard = main.child("SysListView32", 0);
  for (const int row : {1, 4, 5}) rows::clickCheck(standard, row);
  rows::click(standard, 4);
  take("standard", main);
}

void takeEditor(const Zub& zub, const std::string& plugin,
                const std::vector<std::pair<std::string, std::string>>& tabs) {
  const Window main = zub.main();
  openTab(main, "Custom Plugins");
  const Window list = main.child("SysListView32", 0);
  rows::click(list, rows::find(list, plugin));
  main.child("Edit Plugin").click();
  const Window editor = zub.window(title::Editor);
  for (const auto& [tab, name] : tabs) {
    openTab(editor, tab);
    if (tab != "Comments") rows::click(editor.child("LISTBOX", 0), 0);
    take(name, editor);
  }
  editor.child("&Cancel").click();
  REQUIRE(zub.hides(title::Editor));
}

void takeCookies(const Zub& zub, std::string_view title, const std::string& name) {
  zub.main().child("Manage").click();
  const Window keep = zub.window(title);
  rows::click(keep.child("SysListView32", 0), 1);
  take(name, keep);
  keep.child("&Ok").click();
  REQUIRE(zub.hides(title));
}

void takePreview(const Zub& zub) {
  zub.main().child("&Preview").click();
  const Window looking = zub.window(title::Preview);
  takeArea("looking", looking.place(), ToPaint);
  const Window report = zub.window(title::PreviewReport);
  take("preview", report);
  key(VK_ESCAPE);
  REQUIRE(zub.hides(title::PreviewReport));
}

void takeWash(const Zub& zub) {
  zub.main().child("&Start Cleaning").click();
  const Window progress = zub.window(title::Progress);
  takeArea("progress", progress.place(), ToPaint);
  REQUIRE(progress.hasChild("&Cancel"));  // in the midst
  REQUIRE(soon([&] { return progress.hasChild("&Finish"); }));
  progress.child("&View Log").click();
  const Window report = zub.window(title::Report);
  report.child("EDIT", 0).click();
  chord({VK_CONTROL, VK_HOME});
  take("report", report);
  key(VK_ESCAPE);
  REQUIRE(zub.hides(title::Report));
  finish(zub);
}

void takeTray(const Zub& zub) {
  const RECT taskbar = Window(FindWindowA("Shell_TrayWnd", nullptr)).place();
  const int toTheIcon = scaled(11), width = scaled(240), height = scaled(130);
  // Over the icon itself its tooltip would come and lie over the menu.
  movePointer(static_cast<int>(taskbar.right) - toTheIcon, static_cast<int>(taskbar.top) - 1);
  zub.trayMessage(WM_RBUTTONDOWN);
  REQUIRE(soon([] { return FindWindowA("#32768", nullptr) != nullptr; }));
  movePointer(1, 1);
  takeArea("tray", {taskbar.right - width, taskbar.bottom - height, taskbar.right, taskbar.bottom});
  key(VK_ESCAPE);
}

}  // namespace

TEST_CASE("pictures" * doctest::skip()) {
  REQUIRE(std::getenv("ZUB_PICTURES") != nullptr);
  const Story story;
  seedOptions();
  seedCookies();
  seedFiles();
  const Zub zub;
  const Window main = zub.main();
  icons::clickPicture(main, 0);
  takeTabs(main);
  takeEditor(zub, "Card Shop Deluxe", {{"Registry", "editor"}});
  takeEditor(zub, "Home Photo Album", {{"Files & Folders", "editor-files"}, {"Comments", "editor-comments"}});
  openTab(main, "Main");
  takeCookies(zub, title::IECookies, "ie-cookies");
  icons::clickPicture(main, 5);
  main.child("Mail");
  takeCookies(zub, title::NSCookies, "ns-cookies");
  main.child("About").click();
  take("about", zub.window(title::About));
  key(VK_ESCAPE);
  REQUIRE(zub.hides(title::About));
  takePreview(zub);
  takeWash(zub);
  takeTray(zub);
}
