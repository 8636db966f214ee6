#include "windows/Story.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace zub::drive {
namespace {

const std::string Explorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

std::string setting(const char* name) {
  const char* text = std::getenv(name);
  REQUIRE_MESSAGE(text != nullptr, name << " is not set: start this program with run-desktop");
  return text;
}

// Once a run.
void install() {
  static bool done = false;
  if (std::exchange(done, true)) return;
  const pc::fs::path source = setting("ZUB_SOURCE");
  pc::remove(pc::programs());
  pc::fs::create_directories(pc::programs());
  for (const char* program : {"zub.exe", "zub-console.exe", "show_message_box.exe"})
    pc::fs::copy(pc::fs::path(setting("ZUB_PROGRAMS")) / program, pc::programs() / program);
  pc::fs::copy(source / "help", pc::programs() / "help", pc::fs::copy_options::recursive);
}

// Wine does not answer how many there are. The system keeps one record for each in a table that the process can
// read, and so can this one.
int graphicHandlesOf(HANDLE process) {
  using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
  constexpr int BasicInformation = 0, BlockWord = 1;
  constexpr std::size_t TableOfBlock = sizeof(void*) == 8 ? 0xF8 : 0x94;
  constexpr std::size_t Records = 0x4000, RecordSize = 24, KindOfRecord = 14;
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll"), "NtQueryInformationProcess")));
  char* information[6] = {};
  REQUIRE(query(process, BasicInformation, information, sizeof information, nullptr) == 0);
  char* table = nullptr;
  std::string records(Records * RecordSize, '\0');
  REQUIRE(ReadProcessMemory(process, information[BlockWord] + TableOfBlock, static_cast<void*>(&table),
                            sizeof table, nullptr) != 0);
  REQUIRE(ReadProcessMemory(process, table, records.data(), records.size(), nullptr) != 0);
  int used = 0;
  for (std::size_t record = 0; record < Records; ++record)
    used += records[record * RecordSize + KindOfRecord] != 0 ? 1 : 0;
  return used;
}

}  // namespace

Story::Story() {
  install();
  pc::remove(pc::programs() / "Plugins");
  pc::fs::copy(pc::fs::path(setting("ZUB_SOURCE")) / "samples" / "Plugins", pc::programs() / "Plugins");
  pc::removeKey(pc::Store);
  for (const char* key : {"RunMRU", "RecentDocs"}) pc::removeKey(Explorer + key);
  for (const pc::fs::path& folder : {pc::temp(), pc::recent(), pc::cookies(), pc::appData() / "Mozilla"})
    pc::remove(folder);
  pc::fs::create_directories(pc::temp());
  pc::remove("C:\\windows\\tasks\\ZUB.job");
  movePointer(1, 1);
}

Zub::Zub(const std::string& switches, const std::string& program) {
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  const std::string folder = pc::programs().string();
  std::string command = "\"" + folder + "\\" + program + "\" " + switches;
  REQUIRE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                         &startup, &process_) != 0);
  AllowSetForegroundWindow(process_.dwProcessId);
  WaitForInputIdle(process_.hProcess, Patience * 1000);
}

Zub::~Zub() {
  if (runs()) {
    TerminateProcess(process_.hProcess, 1);
    ends();
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool Zub::shows(std::string_view title) const {
  return std::ranges::any_of(windows(),
                             [&](const Window& one) { return one.isVisible() && one.caption() == title; });
}

bool Zub::hides(std::string_view title) const {
  return soon([&] { return !shows(title); });
}

Window Zub::find(std::string_view title, bool isDialog) const {
  Window found;
  soon([&] {
    for (const Window& one : windows()) {
      const bool fits = one.caption() == title && (one.className() == "#32770") == isDialog;
      if (fits && one.isVisible()) found = one;
    }
    return found.handle() != nullptr || !runs();
  });
  REQUIRE_MESSAGE(found.handle() != nullptr, "no window \""
                                                 << std::string(title)
                                                 << std::string(runs() ? "\"" : "\": the program has ended"));
  found.settle();
  return found;
}

Window Zub::trayWindow() const {
  HWND found = nullptr;
  soon([&] {
    found = FindWindowA("ZubraneTray", nullptr);
    return found != nullptr;
  });
  REQUIRE(found != nullptr);
  return Window(found);
}

void Zub::trayMessage(UINT mouseMessage) const {
  PostMessageA(trayWindow().handle(), WM_MOUSEMOVE, 0, static_cast<LPARAM>(mouseMessage));
}

// The icon lies at the right end of the taskbar.
void Zub::clickTray(bool right) const {
  overTray();
  pressButton(right);
  releaseButton(right);
}

void Zub::overTray() const {
  trayWindow();
  const RECT taskbar = Window(FindWindowA("Shell_TrayWnd", nullptr)).place();
  constexpr int FromTheEnd = 11;
  movePointer(static_cast<int>(taskbar.right) - FromTheEnd,
              static_cast<int>(taskbar.top + taskbar.bottom) / 2);
}

void Zub::trayEntry(char letter) const {
  clickTray(true);
  const auto comesBesideThePointer = [] {
    constexpr int TaskbarHeight = 30;
    const Window menu(FindWindowA("#32768", nullptr));
    RECT around = menu.place();
    InflateRect(&around, 1, TaskbarHeight);
    POINT pointer{};
    GetCursorPos(&pointer);
    return menu.isVisible() && PtInRect(&around, pointer) != 0;
  };
  REQUIRE(soon(comesBesideThePointer));
  key(letter);
}

Zub::Handles Zub::handles() const {
  main().settle();
  const auto counted = static_cast<int>(GetGuiResources(process_.hProcess, GR_GDIOBJECTS));
  std::size_t all = 0;
  for (const Window& window : windows()) all += 1 + windowsBelow(window).size();
  return {counted != 0 ? counted : graphicHandlesOf(process_.hProcess), static_cast<int>(all)};
}

bool Zub::ends(int seconds) const {
  return WaitForSingleObject(process_.hProcess, static_cast<DWORD>(seconds) * 1000) == WAIT_OBJECT_0;
}

void Zub::close() const {
  const Window window = main();
  constexpr int TitleX = 80, TitleY = 12;
  window.clickAt(TitleX, TitleY);
  chord({VK_MENU, VK_F4});
  REQUIRE(ends());
}

Window wash(const Zub& zub) {
  zub.main().child("&Start Cleaning").click();
  return washed(zub);
}

Window washed(const Zub& zub) {
  const Window progress = zub.window(title::Progress);
  progress.child("&Finish");
  return progress;
}

std::string answer(const Zub& zub, std::string_view title) {
  const Window message = zub.dialog(title);
  REQUIRE(message.comesToFront());
  std::string text = message.child("STATIC", 0).text();
  if (text.empty()) text = message.child("STATIC", 1).text();  // the first was the place of the box's icon
  message.child("OK").click();
  REQUIRE(soon([&] { return IsWindow(message.handle()) == 0; }));
  return text;
}

void finish(const Zub& zub) {
  washed(zub).child("&Finish").click();
  REQUIRE(zub.hides(title::Progress));
}

Trace::Trace() {
  pc::option("chkTempFolder");
  pc::put(file_, "trace");
}

Holder::Holder(const pc::fs::path& file)
    : file_(CreateFileA(file.string().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
  REQUIRE(file_ != INVALID_HANDLE_VALUE);
}

}  // namespace zub::drive
