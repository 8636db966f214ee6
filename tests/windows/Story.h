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
  Window window(std::string_view title) const;
  // The same of the system's own: a message box, the folder picker.
  Window dialog(std::string_view title) const;
  Window main() const { return window(title::Main); }
  bool shows(std::string_view title) const;
  bool hides(std::string_view title) const;  // waits until it is gone
  // The window behind the tray icon, and a message as the taskbar sends it.
  Window trayWindow() const;
  void trayMessage(UINT mouseMessage) const;
  // From the menu of the icon, by the access key of the entry.
  void trayEntry(char letter) const;

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
void finish(const Zub& zub);
// Reads a message of the system and presses its button.
std::string answer(const Zub& zub, std::string_view title);

}  // namespace zub::drive
