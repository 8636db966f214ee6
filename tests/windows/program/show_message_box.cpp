// Shows the drawn message box, which nothing in the program opens, until it is ended from outside.
#include "ui/MessageBox.h"
#include "ui/win32/WindowSystem.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  zub::Ui ui(instance);
  zub::WindowSystem windows(ui);
  zub::MessageBox box;
  windows.addLater(zub::layout::messageWindow(box));
  box.form.Show();
  windows.run();
}
