#include "ui/win32/WindowSystem.h"

#include <algorithm>

#include "platform/win32/Win32Clock.h"

namespace zub {
namespace {

constexpr std::uint64_t ShowPause = 16;   // milliseconds between two comparisons of windows and forms
constexpr std::uint64_t IdlePause = 100;  // the longest sleep: the shortest interval of a form's timer
// The kinds that Windows 98 knows. With one that came later it refuses the call, and the program would never sleep.
constexpr DWORD AnyInput =
    QS_KEY | QS_MOUSE | QS_POSTMESSAGE | QS_TIMER | QS_PAINT | QS_SENDMESSAGE | QS_HOTKEY;

}  // namespace

// Beats while the system runs a loop of its own, in which the program's loop has no turn: a window that is
// dragged, an open menu, a message box.
class WindowSystem::Heart : public OwnWindow {
 public:
  Heart(Ui& ui, WindowSystem& system) : OwnWindow(ui, colors::White), system_(system) {
    create({"ZubraneHeart", "", WS_POPUP, 0, {}, nullptr});
    SetTimer(hwnd(), 1, IdlePause, nullptr);
  }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_TIMER) return OwnWindow::onMessage(message, wParam, lParam);
    system_.serve();
    return 0;
  }

 private:
  WindowSystem& system_;
};

WindowSystem::WindowSystem(Ui& ui) : ui_(ui) {
  heart_ = std::make_unique<Heart>(ui, *this);
}

WindowSystem::~WindowSystem() = default;

std::uint64_t WindowSystem::now() {
  return Win32Clock().ticks();
}

FormWindow& WindowSystem::add(layout::WindowSpec window) {
  windows_.push_back(std::make_unique<FormWindow>(ui_, std::move(window), nullptr));
  return *windows_.back();
}

void WindowSystem::addLater(layout::WindowSpec window, std::function<HWND()> owner) {
  later_.push_back({std::move(window), std::move(owner)});
}

// Called for each KiB that is shredded: all that most calls cost is a look at the system's coarse clock.
void WindowSystem::DoEvents() {
  if (!changes(lastTurn_, GetTickCount())) return;
  pump();
  serve();
  ui_.guard.throwIfEnded();
}

void WindowSystem::run() {
  for (;;) {
    pump();
    serve();
    ui_.guard.throwIfEnded();
    wait();
  }
}

void WindowSystem::runModal(std::function<bool()> lasts) {
  if (modal_.lasts) return;
  modal_.lasts = std::move(lasts);
  for (const auto& window : windows_) {
    if (IsWindowVisible(window->hwnd()) != 0) modal_.below.push_back(window.get());
  }
  showAll();
  while (modal_.lasts()) {
    wait();
    pump();
    serve();
    ui_.guard.throwIfEnded();
  }
  modal_ = {};
  showAll();
}

void WindowSystem::pump() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) throw EndOfProcess{};
    dispatch(message);
    ui_.guard.throwIfEnded();
  }
}

void WindowSystem::dispatch(MSG& message) {
  owesShow_ = true;
  const HWND top = message.hwnd != nullptr ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
  FormWindow* form = FormWindow::of(top);
  if (form != nullptr && form->takesMessage(message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

void WindowSystem::serve() {
  if (serveTimers) serveTimers(now());
  if (now() - lastShow_ >= ShowPause) showAll();
}

void WindowSystem::showAll() {
  if (showing_) return;
  showing_ = true;
  lastShow_ = now();
  owesShow_ = false;
  for (std::size_t at = 0; at < later_.size();) {
    const Form* form = later_[at].window.form();
    if (form == nullptr || !form->Visible) {
      ++at;
      continue;
    }
    const HWND owner = later_[at].owner ? later_[at].owner() : nullptr;
    windows_.push_back(std::make_unique<FormWindow>(ui_, std::move(later_[at].window), owner));
    later_.erase(later_.begin() + static_cast<std::ptrdiff_t>(at));
  }
  const bool isModal = modal_.lasts && modal_.lasts();
  const auto covered = [&](const std::unique_ptr<FormWindow>& window) {
    return isModal && std::ranges::find(modal_.below, window.get()) != modal_.below.end();
  };
  for (const auto& window : windows_) window->showForm(covered(window));
  for (const auto& window : windows_) window->hideForm(covered(window));
  showing_ = false;
}

// Sleeps until there is a message, or something to show, or a timer may be due.
void WindowSystem::wait() {
  const std::uint64_t sinceShow = now() - lastShow_;
  const std::uint64_t pause = !owesShow_ ? IdlePause : sinceShow < ShowPause ? ShowPause - sinceShow : 0;
  MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(pause), AnyInput);
}

HWND WindowSystem::dialogOwner() {
  showAll();
  const HWND active = GetActiveWindow();
  return active != nullptr && IsWindowVisible(active) != 0 ? active : nullptr;
}

}  // namespace zub
