// The program's event loop and its windows. The windows compare themselves with their forms here, and only
// here, at most about 60 times a second.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Services.h"
#include "ui/layout/WindowSpec.h"
#include "ui/win32/FormWindow.h"

namespace zub {

class WindowSystem : public EventLoop {
 public:
  explicit WindowSystem(Ui& ui);
  WindowSystem(const WindowSystem&) = delete;
  WindowSystem& operator=(const WindowSystem&) = delete;
  ~WindowSystem() override;

  // Runs in each turn; `now` is the steady clock in milliseconds.
  std::function<void(std::uint64_t now)> serveTimers;

  // A window that is made at once, hidden.
  FormWindow& add(layout::WindowSpec window);
  // A window that is made when its form is first visible; `owner` answers the window that it lies over.
  void addLater(layout::WindowSpec window, std::function<HWND()> owner = {});

  // Throws EndOfProcess where the process ends in it. Does nothing if the last turn was a moment ago.
  void DoEvents() override;
  // The main loop. Throws EndOfProcess.
  [[noreturn]] void run();
  // Runs the loop while the condition holds. The windows that are there now get no input meanwhile. Does
  // nothing where such a loop runs already.
  void runModal(std::function<bool()> lasts);

  // The program's window in front, for a dialog to lie over; null where none is visible. What the forms have
  // come to is shown first: a window that came up later would cover the dialog.
  HWND dialogOwner();

 private:
  class Heart;
  struct Later {
    layout::WindowSpec window;
    std::function<HWND()> owner;
  };
  struct Modal {
    std::function<bool()> lasts;  // none: nothing is modal
    std::vector<const FormWindow*> below;
  };

  static std::uint64_t now();  // milliseconds
  void pump();
  void dispatch(MSG& message);
  void serve();  // timers, then the windows if their time has come
  void showAll();
  void wait();

  Ui& ui_;
  std::unique_ptr<Heart> heart_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<Later> later_;
  Modal modal_;
  DWORD lastTurn_ = 0;  // the count of the system's ticks
  std::uint64_t lastShow_ = 0;
  bool showing_ = false;
  bool owesShow_ = false;  // something happened since the windows were shown
};

}  // namespace zub
