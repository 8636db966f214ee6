// zub.exe: the program on the PC that it runs on, with its windows.
#include "app/Program.h"
#include "app/Timers.h"
#include "base/Text.h"
#include "platform/win32/Win32Platform.h"
#include "ui/MessageBox.h"
#include "ui/frmAbout.h"
#include "ui/win32/CommonControls.h"
#include "ui/win32/TrayWindow.h"
#include "ui/win32/WindowSystem.h"

namespace {

using namespace zub;

[[noreturn]] void runProgram(HINSTANCE instance) {
  Ui ui(instance);
  TrayWindow tray(ui);
  WindowSystem windows(ui);
  Win32Platform pc(windows, tray, [&windows] { return windows.dialogOwner(); });
  Program program(pc.platform());
  frmAbout about(program.engine.pc);
  MessageBox messageBox;
  Timers timers(program);

  windows.serveTimers = [&timers](std::uint64_t now) { timers.serve(now); };
  tray.attach(program.icon);
  program.icon.windows[frmIcon::MessageWindow] = [&messageBox]() -> Form& { return messageBox.form; };

  const HWND main = windows.add(layout::mainWindow(program.main)).hwnd();
  windows.addLater(layout::progressWindow(program.engine.animated));
  windows.addLater(layout::reportWindow(program.engine.clean));
  windows.addLater(layout::previewWindow(program.main.preview), [main] { return main; });
  windows.addLater(layout::previewReportWindow(program.main.preview));
  windows.addLater(layout::editorWindow(*program.editor));
  windows.addLater(layout::cookieWindow(*program.ieCookies));
  windows.addLater(layout::cookieWindow(*program.nsCookies));
  windows.addLater(layout::aboutWindow(about), [main] { return main; });
  windows.addLater(layout::messageWindow(messageBox), [main] { return main; });
  program.main.showAbout = [&] {
    about.Form_Load();
    about.form.Show();
    windows.runModal([&about] { return about.form.Visible; });
  };

  try {
    program.start();
    windows.run();
  } catch (const EndOfProcess&) {
    ExitProcess(0);  // at once, while all that a window can reach is there
  }
}

}  // namespace

// What the command line may hold. Asked for with other switches it says nothing: those are obeyed.
bool tellsSwitches(const char* arguments) {
  const std::string_view asked = trim(arguments);
  if (asked != "/?" && asked != "-?") return false;
  MessageBoxA(nullptr,
              "zub.exe\tOpens the main window.\n\n"
              "/STARTUP\tStarts in the tray, as with Windows, and cleans if \"Starts\" is ticked among the "
              "options.\n\n"
              "/SCHEDULER\tStarts in the tray and cleans at once.\n\n"
              "The switches are written in capitals. zub-console.exe --help tells the commands of the "
              "console program.",
              "Zubrane", MB_OK | MB_ICONINFORMATION);
  return true;
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR arguments, int) {
  if (tellsSwitches(arguments)) return 0;
  // One by one: a library that does not know a kind of classes refuses all that are asked for with it.
  for (const DWORD classes : {DWORD{ICC_WIN95_CLASSES}, DWORD{ICC_STANDARD_CLASSES}}) {
    const INITCOMMONCONTROLSEX controls{sizeof controls, classes};
    InitCommonControlsEx(&controls);
  }
  try {
    runProgram(instance);
  } catch (...) {
    MessageBoxA(nullptr, textOfFailure(), "Zubrane", MB_OK | MB_ICONSTOP);
    return 1;
  }
}
