// A drawn window laid out like a message box. The program's questions and notices go through the system's own;
// nothing opens this one, and its controls lead nowhere.
#pragma once

#include "state/Controls.h"

namespace zub {

class MessageBox {
 public:
  Form form;
  Label lblTitle{"Zubrone"};
  Label lblMessage{"Are you sure?"};
  bool imginformation = true;  // whether the icon shows
  bool imgquestion = false;
  bool imgcritical = false;
  bool imgexclamation = false;
  Button cmdYes{"&Yes"};
  Button cmdNo{"&No"};
};

}  // namespace zub
