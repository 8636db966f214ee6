// The program as it is installed and started for one story. Every story begins with a program that was never
// used, and ends what it started.
#pragma once

#include "windows/Desktop.h"
#include "windows/Pc.h"

namespace zub::drive {

namespace title {
inline constexpr std::string_view Main = "Zubrane";
inline constexpr std::string_view Progress = "ZUB - Task Removal Status";
inline constexpr std::string_view Report = "Log Report";
inline constexpr std::string_view Preview = "ZUB - Preview";
inline constexpr std::string_view PreviewReport = "Preview";
inline constexpr std::string_view Editor = "ZUB Plugin Editor";
inline constexpr std::string_view IECookies = "Internet Explorer Cookie Manger";
inline constexpr std::string_view NSCookies = "Netscape Cookie Manger";
inline constexpr std::string_view About = "About ZUB";
}  // namespace title

// One start of zub.exe, or of another of its programs.
class Zub {
 public:
  explicit Zub(const std::string& switches = "", const std::string& program = "zub.exe");
  Zub(const Zub&) = delete;
  Zub& operator=(const Zub&) = delete;
  ~Zub();

  // The window with this title, when it has come.
  Window window(std::string_view title) const { return find(title, false); }
  // The same of the system's own: a message box, the folder picker.
  Window dialog(std::string_view title) const { return find(title, true); }
  Window main() const { return window(title::Main); }
  bool shows(std::string_view title) const;
  bool hides(std::string_view title) const;  // waits until it is gone

  // The icon in the tray: the window behind it, a message as the taskbar sends it, the pointer on it, and the menu's
  // entry with this access key.
  Window trayWindow() const;
  void trayMessage(UINT mouseMessage) const;
  void overTray() const;
  void clickTray(bool right = false) const;
  void trayEntry(char letter) const;

  std::vector<Window> windows() const { return windowsOf(process_.dwProcessId); }  // hidden ones included

  // What the process holds of the system: pens, brushes, fonts, bitmaps, device contexts; windows, hidden ones
  // included.
  struct Handles {
    int graphics, windows;
  };
  Handles handles() const;

  // Waits for the end of the process.
  bool ends(int seconds = Patience) const;
  bool runs() const { return !ends(0); }
  // With Alt and F4 on the main window.
  void close() const;

 private:
  Window find(std::string_view title, bool isDialog) const;

  PROCESS_INFORMATION process_{};
};

class Story {
 public:
  Story();
};

// Presses "Start Cleaning", waits for the end of the wash and leaves its window open.
Window wash(const Zub& zub);
// The window of a wash that somebody else began, at its end.
Window washed(const Zub& zub);
void finish(const Zub& zub);
// Reads a message of the system and presses its button.
std::string answer(const Zub& zub, std::string_view title);

// A file that only the washes of the temporary folder remove.
class Trace {
 public:
  Trace();
  bool isThere() const { return pc::exists(file_); }

 private:
  pc::fs::path file_ = pc::temp() / "trace.tmp";
};

// Holds a file open as a program that shares nothing.
class Holder {
 public:
  explicit Holder(const pc::fs::path& file);
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;
  ~Holder() { CloseHandle(file_); }

 private:
  HANDLE file_;
};

}  // namespace zub::drive
